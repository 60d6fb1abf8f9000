// The real desktop, on Qt's dialogs and services.
#pragma once

#include "desktop/Desktop.h"

class QtDesktop : public Desktop {
public:
    Answer showMessage(const Message& message) override;
    void runModal(QWidget& window) override;
    void openLink(const QString& link) override;
    void runMenu(QMenu& menu, const QPoint& place) override;
    void showHelp(const QString& helpFile, HelpCommand command, int context) override;
    void closeHelp(const QString& helpFile) override;
    void setClipboardText(const QString& text) override;
    std::unique_ptr<QPagedPaintDevice> choosePrinter() override;
    QDateTime now() override;
    void beep() override;
    [[noreturn]] void endProgram() override;
};
