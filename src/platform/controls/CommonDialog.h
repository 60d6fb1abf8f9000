// The way from a window to the dialogs of the system: what to show is set first, then shown.
#pragma once

#include "desktop/Desktop.h"

#include <QPagedPaintDevice>
#include <QString>

class CommonDialog {
public:
    // The help viewer.
    QString HelpFile;
    int HelpContext = 0;
    HelpCommand helpCommand = HelpCommand::Contents;

    // The printer that the user chooses, or null if he cancels.
    std::unique_ptr<QPagedPaintDevice> ShowPrinter() const { return desktop().choosePrinter(); }

    void ShowHelp() const { desktop().showHelp(HelpFile, helpCommand, HelpContext); }
};
