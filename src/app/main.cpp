// Starts the toolkit and the desktop, sets up the program's folder, and hands over to Main.
#include "app/FirstPage.h"
#include "app/JetConversion.h"
#include "app/ProgramFolder.h"
#include "app/UnattendedDesktop.h"

#include "Configuration.h"
#include "controls/Handler.h"
#include "core/NewSetup.h"
#include "core/Settings.h"
#include "reader/frmMain.h"
#include "settings/SettingsStore.h"
#include "store/JetConverter.h"

#include <QApplication>
#include <QIcon>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

int run() {
    prepareProgramFolder();
    setJetConverter(convertJetDatabase);
    resetSettings();
    runHandler(Main);
    if (programHasEnded())
        return 1;
    return endsWithFirstPage() ? finishFirstPage(form<frmMain>()) : QApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QApplication::setApplicationName(u"lumenvia"_s);
    QApplication::setDesktopFileName(u"lumenvia"_s);
    QApplication::setWindowIcon(QIcon(u":/icons/lumenvia.svg"_s));
    const std::unique_ptr<QtDesktop> realDesktop =
        endsWithFirstPage() ? std::make_unique<UnattendedDesktop>() : std::make_unique<QtDesktop>();
    setDesktop(realDesktop.get());
    const int code = run();
    forms::discardAll();
    flushSettings();
    return code;
}
