#include "search/RandomUser.h"

#include "controls/CheckBox.h"
#include "controls/Forms.h"
#include "controls/OptionButton.h"
#include "reader/frmMain.h"
#include "search/frmIndex.h"

#include <QAbstractButton>
#include <QPagedPaintDevice>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int LongestVisit = 12;
constexpr qsizetype LinesOfStory = 60;

const QStringList texts = {u"verse"_s,    u"Verse 19"_s, u"verse 40:1"_s, u"light"_s,
                           u"love"_s,     u"nowhere"_s,  u"1"_s,          u"note"_s,
                           u""_s,         u"  "_s,       u"'"_s,          u"\""_s,
                           u"*"_s,        u"[a]?#%_"_s,  u"\\"_s,         u";"_s,
                           u"' or 1=1"_s, u"\" or \""_s, u"λόγος"_s,      u"light*love"_s};

constexpr Qt::Key listKeys[] = {Qt::Key_Down, Qt::Key_Up, Qt::Key_Home, Qt::Key_End};
constexpr Qt::Key pageKeys[] = {Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_Down, Qt::Key_Up};
constexpr Qt::KeyboardModifier modifiers[] = {
    Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier};

// Whether a user can use a control of this window.
bool isUsable(const QWidget& control, const QWidget& window) {
    return control.isEnabled() && control.isVisibleTo(&window)
           && (qobject_cast<const QAbstractButton*>(&control)
               || qobject_cast<const QLineEdit*>(&control)
               || qobject_cast<const QComboBox*>(&control));
}

} // namespace

void RandomUser::tell(const QString& action) {
    ++m_actions;
    m_story.append(action);
    if (m_story.size() > LinesOfStory)
        m_story.removeFirst();
}

Answer RandomUser::showMessage(const Message& message) {
    const bool yes = below(2) == 0;
    m_story.append(u"    box: "_s + message.text.simplified().left(60));
    if (message.buttons == MessageButtons::Ok)
        return Answer::Ok;
    return yes ? Answer::Yes : Answer::No;
}

void RandomUser::runModal(QWidget& window) {
    window.show();
    ++m_visits[window.objectName()];
    const int visit = 1 + below(LongestVisit);
    for (int action = 0; action < visit && window.isVisible(); ++action)
        useAnyControl(window);
    if (window.isVisible()) {
        tell(u"close "_s + window.objectName());
        if (below(2) == 0)
            QTest::keyClick(&window, Qt::Key_Escape);
        else
            window.close();
    }
}

void RandomUser::useAnyControl(QWidget& window) {
    QList<QWidget*> controls = window.findChildren<QWidget*>();
    controls.removeIf([&](const QWidget* control) { return !isUsable(*control, window); });
    use(*oneOf(controls));
}

void RandomUser::use(QWidget& control) {
    if (auto* list = qobject_cast<QComboBox*>(&control)) {
        pick(*list);
    } else if (qobject_cast<QLineEdit*>(&control)) {
        type(control);
    } else {
        tell(u"press "_s + control.objectName());
        static_cast<QAbstractButton&>(control).click();
    }
}

void RandomUser::type(QWidget& box) {
    const QString text = oneOf(texts);
    tell(u"type into "_s + box.objectName() + u": "_s + text);
    static_cast<QLineEdit&>(box).setText(text);
    if (below(3) == 0)
        QTest::keyClick(&box, Qt::Key_Return);
}

void RandomUser::pick(QComboBox& list) {
    tell(u"pick in "_s + list.objectName());
    QTest::keyClick(&list, oneOf(listKeys));
}

void RandomUser::act() {
    switch (below(8)) {
    case 0:
    case 1:
    case 2:
        command();
        break;
    case 3:
        turn();
        break;
    case 4:
        useLists();
        break;
    case 5:
        type(form<frmMain>().txtFind);
        break;
    case 6:
        useTree();
        break;
    default:
        useIndex();
        break;
    }
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

// The search commands by tool bar, menu and pop-up menu.
void RandomUser::command() {
    frmMain& main = form<frmMain>();
    if (below(2) == 0) {
        constexpr int searches[] = {3, 4, 5, 6, 7, 8, 8, 10};
        use(main.cmdMain(oneOf(searches)));
        return;
    }
    MenuItem* const items[] = {&main.mnuSearch(0), &main.mnuSearch(1), &main.mnuSearch(3),
                               &main.mnuSearch(4), &main.mnuSearch(6), &main.mnuTool(1),
                               &main.mnutext(5),   &main.mnutext(7),   &main.mnutext(8),
                               &main.mnubible(2),  &main.mnubible(6)};
    MenuItem* item = oneOf(items);
    tell(u"choose "_s + item->objectName());
    item->trigger();
}

void RandomUser::turn() {
    frmMain& main = form<frmMain>();
    if (below(4) == 0) {
        tell(u"write a note"_s);
        main.txtNote.SetFocus();
        QTest::keyClicks(&main.txtNote, u"note"_s);
        return;
    }
    tell(u"turn the page"_s);
    QTest::keyClick(&main.txtMain, oneOf(pageKeys), oneOf(modifiers));
}

void RandomUser::useLists() {
    frmMain& main = form<frmMain>();
    ComboBox* const lists[] = {&main.cmbTestament, &main.cboBook, &main.cboChapter, &main.cboVerse};
    if (ComboBox* list = oneOf(lists); list->isEnabled())
        pick(*list);
}

void RandomUser::useTree() {
    const QString keys[] = {u"1:1"_s, u"1:2"_s, u"X19"_s, u"40:1"_s, u"66:22"_s, u"2:1"_s};
    const QString key = oneOf(keys);
    tell(u"tree "_s + key);
    form<frmMain>().Tree_NodeClick(key);
}

void RandomUser::useIndex() {
    if (!isLoaded<frmIndex>()) {
        form<frmMain>().cmdMain_MouseMove(5);
        return;
    }
    frmIndex& index = form<frmIndex>();
    if (below(3) == 0) {
        useAnyControl(index);
        return;
    }
    tell(u"choose in the index"_s);
    QTest::keyClick(&index.lstIndex, oneOf(listKeys));
    if (below(2) == 0)
        QTest::keyClick(&index.lstIndex, Qt::Key_Return);
}

void RandomUser::closeWindows() {
    if (isLoaded<frmIndex>())
        form<frmIndex>().close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

std::unique_ptr<QPagedPaintDevice> RandomUser::choosePrinter() {
    return nullptr;
}

QDateTime RandomUser::now() {
    return {QDate(2003, 4, 5), QTime(6, 7, 8)};
}
