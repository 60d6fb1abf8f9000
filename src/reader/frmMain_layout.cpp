// The layout of the main window.
#include "basic/Error.h"
#include "core/BookNames.h"
#include "core/GlobalCode.h"
#include "reader/frmMain.h"

#include <QBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize FirstSize(1100, 760);
constexpr QSize LeastSize(720, 480);

// The tree's part of the width, and the page's part of the height, in a new window.
constexpr double TreeShare = 0.2;
constexpr double PageShare = 0.78;

constexpr int VersesInList = 175;

const ImageList treeImages = {
    {u"GreenClosed"_s, u":/icons/tree/green-closed.svg"_s},
    {u"GreenOpen"_s, u":/icons/tree/green-open.svg"_s},
    {u"RedClosed"_s, u":/icons/tree/red-closed.svg"_s},
    {u"RedOpen"_s, u":/icons/tree/red-open.svg"_s},
    {u"Chapter"_s, u":/icons/tree/chapter.svg"_s},
};

} // namespace

void frmMain::layOut() {
    resize(FirstSize);
    setMinimumSize(LeastSize);
    tree.setImageList(treeImages);
    txtMain.setLocked(true);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(&pnlMain);
    column->addWidget(&vbuSplitter1, 1);
    layOutStrip();
    layOutNotePane();
    vbuSplitter1.setShare(TreeShare);
    vbuSplitter2.setShare(PageShare);
}

void frmMain::layOutStrip() {
    auto* row = new QHBoxLayout(&pnlMain);
    row->setContentsMargins(8, 6, 8, 6);
    row->setSpacing(6);
    for (QWidget* box :
         {static_cast<QWidget*>(&cmbTestament), static_cast<QWidget*>(&cboBook),
          static_cast<QWidget*>(&cboChapter), static_cast<QWidget*>(&cboVerse)})
        row->addWidget(box);
    row->addWidget(&txtFind, 1);
}

void frmMain::layOutNotePane() {
    auto* heading = new QHBoxLayout;
    heading->setContentsMargins(8, 4, 8, 0);
    heading->addWidget(&lblCurrentNote, 1);
    heading->addWidget(&cmdComment);
    auto* column = new QVBoxLayout(&notePane);
    column->setContentsMargins({});
    column->setSpacing(4);
    column->addLayout(heading);
    column->addWidget(&txtNote, 1);
    txtNote.setFrameShape(QFrame::NoFrame);
    tree.setFrameShape(QFrame::NoFrame);
}

void frmMain::Screensetup() {
    attempt([this] {
        cmbTestament.Clear();
        cmbTestament.AddItems({u"Both"_s, u"Old"_s, u"New"_s});
        cmbTestament.setListIndex(0);
    });
    attempt([this] { fillBookList(); });
    attempt([this] {
        QStringList verses;
        for (int verse = 1; verse <= VersesInList; ++verse)
            verses.append(QString::number(verse));
        cboVerse.Clear();
        cboVerse.AddItems(verses);
        cboVerse.setListIndex(0);
    });
    ScreenBusy = On;
    ScreenBusy = Off;
}

void frmMain::fillBookList() {
    cboBook.Clear();
    cboBook.AddItems(QStringList(BookNames.begin(), BookNames.end()));
    cboBook.setListIndex(0);
}

void frmMain::Resize() {
    if (LastSplitWidth != vbuSplitter1.length())
        vbuSplitter1.setShare(vbuSplitter1.share());
    if (LastSplitHeight != vbuSplitter2.length())
        vbuSplitter2.setShare(vbuSplitter2.share());
    LastSplitWidth = static_cast<qint16>(vbuSplitter1.length());
    LastSplitHeight = static_cast<qint16>(vbuSplitter2.length());
}
