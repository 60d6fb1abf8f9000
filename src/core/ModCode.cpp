#include "core/ModCode.h"

#include "basic/Text.h"
#include "core/GlobalCode.h"
#include "reader/frmMain.h"

using namespace Qt::StringLiterals;

void ShowHelp(const QString& topic) {
    HelpFile = FindDataFile(u"bible.hlp"_s);
    CommonDialog& dialog = form<frmMain>().cdlCommon;
    dialog.HelpFile = HelpFile;
    dialog.HelpContext = static_cast<int>(Val(Trim(topic)));
    dialog.helpCommand = HelpCommand::Context;
    dialog.ShowHelp();
}
