// A reader who does nothing but type: opens the program off screen and writes the alphabet into the
// note of one verse, over and over. After the release of each key it reports how many it has typed.
//
//   note_typist BOOK CHAPTER VERSE KEYS
#include "app/UnattendedDesktop.h"
#include "core/GlobalCode.h"
#include "core/NewSetup.h"
#include "reader/frmMain.h"
#include "store/StoreTuning.h"

#include <QApplication>
#include <QTest>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

void showVerse(int book, int chapter, int verse) {
    rsBible.Seek(u"="_s, book, chapter, verse);
    form<frmMain>().txtNote.SetFocus(); // fills the pane from the cursor
}

void type(int keys) {
    MultilineTextBox& note = form<frmMain>().txtNote;
    note.selectAll();
    for (int key = 0; key < keys; ++key) {
        QTest::keyClick(&note, static_cast<char>('a' + key % 26));
        std::printf("%d\n", key + 1);
        std::fflush(stdout);
    }
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"lumenvia"_s);
    UnattendedDesktop unattended;
    setDesktop(&unattended);
    // Two of these type without a pause, as no hand can; on a slow disk the other waits for long.
    storeTuning().busyTimeout = std::chrono::seconds(60);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 5)
        return 2;
    Main();
    showVerse(arguments[1].toInt(), arguments[2].toInt(), arguments[3].toInt());
    type(arguments[4].toInt());
    std::_Exit(0); // no shutdown: what was typed is on the disk already
}
