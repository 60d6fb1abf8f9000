// The layout of the main window.
#include "basic/Error.h"
#include "controls/FlowLayout.h"
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

constexpr int StripMargin = 6;
constexpr int StripSpacing = 6;

QWidget* makeSeparator(QWidget* group) {
    auto* line = new QFrame(group);
    line->setFrameShape(QFrame::VLine);
    line->setFrameShadow(QFrame::Plain);
    line->setForegroundRole(QPalette::Mid);
    return line;
}

} // namespace

void frmMain::layOut() {
    resize(FirstSize);
    setMinimumSize(LeastSize);
    tree.setImageList(treeImages);
    txtMain.setLocked(true);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->setMenuBar(&mnuMain);
    column->addWidget(&pnlMain);
    column->addWidget(&vbuSplitter1, 1);
    layOutStrip();
    layOutNotePane();
    vbuSplitter1.setShare(TreeShare);
    vbuSplitter2.setShare(PageShare);
}

void frmMain::layOutStrip() {
    using enum ToolBarButton::Group;
    auto* strip = new FlowLayout(&pnlMain, StripSpacing);
    strip->setContentsMargins(StripMargin, StripMargin, StripMargin, StripMargin);
    for (const auto group : {Output, Clipboard, Find, Searches, Tools})
        strip->addWidget(makeGroup(group));
}

// One group of the strip. The lists and the find box stand before the buttons that search for it.
QWidget* frmMain::makeGroup(ToolBarButton::Group group) {
    auto* widget = new QWidget(&pnlMain);
    auto* row = new QHBoxLayout(widget);
    row->setContentsMargins({});
    row->setSpacing(2);
    if (group == ToolBarButton::Group::Find) {
        for (ComboBox* list : {&cmbTestament, &cboBook, &cboChapter, &cboVerse})
            row->addWidget(list);
        row->addWidget(&txtFind, 1);
        txtFind.setPlaceholderText(txtFind.ToolTipText());
        widget->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    }
    for (const ToolBarButton& button : toolBarButtons()) {
        if (button.group == group)
            row->addWidget(makeButton(button, widget));
    }
    if (group != ToolBarButton::Group::Tools)
        row->addWidget(makeSeparator(widget));
    return widget;
}

PictureButton* frmMain::makeButton(const ToolBarButton& button, QWidget* group) {
    const QString name = u"cmdMain("_s + QString::number(button.index) + u')';
    return &cmdMain.add(
        button.index, std::make_unique<PictureButton>(
                          group, ControlText{name, {}, button.toolTip}, button.picture));
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
    cmdComment.setShortcut({}); // Alt+C belongs to the menu of translations
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

void frmMain::Resize() {
    if (LastSplitWidth != vbuSplitter1.length())
        vbuSplitter1.setShare(vbuSplitter1.share());
    if (LastSplitHeight != vbuSplitter2.length())
        vbuSplitter2.setShare(vbuSplitter2.share());
    LastSplitWidth = static_cast<qint16>(vbuSplitter1.length());
    LastSplitHeight = static_cast<qint16>(vbuSplitter2.length());
}
