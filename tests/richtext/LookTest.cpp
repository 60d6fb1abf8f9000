#include "richtext/FontFamilies.h"
#include "richtext/PagePalette.h"
#include "richtext/RichTextPage.h"
#include "richtext/samplePages.h"

#include <QApplication>
#include <QClipboard>
#include <QFontDatabase>
#include <QFontInfo>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QColor pixelAt(QWidget& widget, const QPoint& place) {
    const QPixmap picture = widget.grab();
    return picture.toImage().pixelColor(place * picture.devicePixelRatio());
}

constexpr QPoint emptyCorner(3, 3);

} // namespace

TEST(Fonts, aFamilyThatTheMachineHasIsKept) {
    const QString present = QFontDatabase::families().constFirst();
    EXPECT_EQ(availableFamily(present), present);
}

TEST(Fonts, aFamilyThatTheMachineLacksIsStoodInForByItsTwin) {
    const std::pair<QString, QString> twins[] = {
        {u"Times New Roman"_s, u"Liberation Serif"_s},
        {u"Arial"_s, u"Liberation Sans"_s},
        {u"courier new"_s, u"Liberation Mono"_s},
        {u"Courier"_s, u"Liberation Mono"_s},
    };
    for (const auto& [family, twin] : twins)
        EXPECT_EQ(availableFamily(family), QFontDatabase::hasFamily(family) ? family : twin);
    if (!QFontDatabase::hasFamily(u"MS Sans Serif"_s)) {
        EXPECT_EQ(
            availableFamily(u"MS Sans Serif"_s),
            QFontDatabase::systemFont(QFontDatabase::GeneralFont).family());
    }
}

TEST(Fonts, aFamilyWithoutATwinIsLeftToTheSystem) {
    EXPECT_EQ(availableFamily(u"BSTGreek"_s), u"BSTGreek"_s);
    EXPECT_EQ(availableFamily(QString()), QString());
}

TEST(Look, aBackColourIsThePagesAlone) {
    RichTextPage box;
    box.resize(300, 200);
    const QPalette before = box.verticalScrollBar()->palette();
    box.setBackColor(QColor(0, 0, 128));
    EXPECT_EQ(box.BackColor(), QColor(0, 0, 128));
    EXPECT_EQ(pixelAt(box, emptyCorner), QColor(0, 0, 128));
    const QPalette after = box.verticalScrollBar()->palette();
    for (int role = 0; role < QPalette::NColorRoles; ++role) {
        const auto colorRole = QPalette::ColorRole(role);
        if (colorRole == QPalette::NoRole)
            continue;
        EXPECT_EQ(after.color(colorRole), before.color(colorRole)) << role;
    }
}

TEST(Look, withoutABackColourThePageFollowsTheSystem) {
    RichTextPage box;
    EXPECT_EQ(box.BackColor(), QApplication::palette().color(QPalette::Base));
}

TEST(Look, aChangeOfTheSystemsColoursKeepsTheBackColour) {
    RichTextPage box;
    box.resize(300, 200);
    box.setBackColor(QColor(1, 2, 3));
    box.show();
    const QPalette system = QApplication::palette();
    QPalette other = system;
    other.setColor(QPalette::Base, Qt::darkGreen);
    other.setColor(QPalette::Highlight, Qt::yellow);
    QApplication::setPalette(other);
    QCoreApplication::processEvents();
    EXPECT_EQ(pixelAt(box, emptyCorner), QColor(1, 2, 3));
    EXPECT_EQ(box.palette().color(QPalette::Highlight), QColor(Qt::yellow));
    EXPECT_EQ(box.verticalScrollBar()->palette().color(QPalette::Highlight), QColor(Qt::yellow));
    QApplication::setPalette(system);
}

TEST(Look, theSelectionStandsOutFromEveryBackColour) {
    const QPalette system = QApplication::palette();
    const auto distance = [](const QColor& one, const QColor& other) {
        return std::abs(one.red() - other.red()) + std::abs(one.green() - other.green())
               + std::abs(one.blue() - other.blue());
    };
    for (const QColor& back :
         {QColor(Qt::white), QColor(Qt::black), QColor(0, 0, 128), QColor(255, 255, 225),
          system.color(QPalette::Highlight), QColor(128, 128, 128)}) {
        const QPalette page = pagePalette(system, back);
        for (const auto group : {QPalette::Active, QPalette::Inactive}) {
            const QColor selection = page.color(group, QPalette::Highlight);
            EXPECT_GT(distance(selection, back), 60) << back.name().toStdString();
            EXPECT_GT(distance(selection, page.color(group, QPalette::HighlightedText)), 200);
            EXPECT_GT(distance(back, page.color(group, QPalette::Text)), 300);
        }
    }
}

TEST(Look, thePageHasAMarginAndNoFrame) {
    RichTextPage box;
    EXPECT_EQ(box.frameWidth(), 0);
    EXPECT_EQ(box.document()->documentMargin(), 20);
    box.setTextRTF(psalmPage({u"Amen"_s}));
    EXPECT_EQ(box.document()->documentMargin(), 20);
}

TEST(Look, linesWrapAtTheWidthOfTheBox) {
    RichTextPage box;
    box.resize(300, 200);
    box.show();
    box.setTextRTF(psalmPage(longestPsalm()));
    EXPECT_EQ(box.horizontalScrollBar()->maximum(), 0);
    EXPECT_GT(box.verticalScrollBar()->maximum(), 1000);
}

TEST(Look, theFontOfTheWholeTextChanges) {
    RichTextPage box;
    box.setTextRTF(u"{\\rtf1\\fs20 small {\\fs40\\b big}}"_s);
    box.setFontSize(15);
    box.setFontName(u"Arial"_s);
    box.setFontItalic(true);
    for (int place : {0, 6}) {
        box.setSelStart(place);
        box.setSelLength(1);
        const QTextCharFormat format = box.textCursor().charFormat();
        EXPECT_EQ(format.fontPointSize(), 15);
        EXPECT_TRUE(box.SelItalic());
        EXPECT_EQ(format.fontFamilies().toStringList(), QStringList{availableFamily(u"Arial"_s)});
    }
    EXPECT_TRUE(box.SelBold());
    box.setText(u"new"_s);
    EXPECT_EQ(QFontInfo(box.document()->defaultFont()).pointSizeF(), 15);
    EXPECT_TRUE(box.SelItalic());
}

TEST(Look, lockedTheTextIsReadAndCopiedButNotChanged) {
    RichTextPage box;
    box.setText(u"one two"_s);
    box.setLocked(true);
    EXPECT_TRUE(box.Locked());
    box.show();
    QTest::keyClicks(&box, u"typed"_s);
    QTest::keyClick(&box, Qt::Key_Delete);
    QTest::keyClick(&box, Qt::Key_Backspace);
    QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), u"one two"_s);
    QTest::keyClick(&box, Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(box.SelText(), u"o"_s);
    QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(box.SelText(), u"one two"_s);
    QGuiApplication::clipboard()->clear();
    QTest::keyClick(&box, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"one two"_s);
    box.setLocked(false);
    QTest::keyClick(&box, Qt::Key_X);
    EXPECT_EQ(box.Text(), u"x"_s);
}

TEST(Look, aLockedPageScrollsByKeyboard) {
    RichTextPage box;
    box.resize(400, 200);
    box.setLocked(true);
    box.setTextRTF(psalmPage(longestPsalm()));
    box.show();
    QTest::keyClick(&box, Qt::Key_PageDown);
    QTest::keyClick(&box, Qt::Key_PageDown);
    EXPECT_GT(box.verticalScrollBar()->value(), 100);
    QTest::keyClick(&box, Qt::Key_End, Qt::ControlModifier);
    EXPECT_GT(box.verticalScrollBar()->value(), box.verticalScrollBar()->maximum() - 40);
    QTest::keyClick(&box, Qt::Key_Home, Qt::ControlModifier);
    EXPECT_LE(box.verticalScrollBar()->value(), 20);
}

TEST(Look, theWheelNeverChangesTheSizeOfTheText) {
    RichTextPage box;
    box.resize(400, 200);
    box.setLocked(true);
    box.setText(u"text\n"_s.repeated(100));
    box.show();
    const double before = box.fontInfo().pointSizeF();
    QWheelEvent wheel(
        QPointF(50, 50), box.viewport()->mapToGlobal(QPointF(50, 50)), QPoint(), QPoint(0, 120),
        Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(box.viewport(), &wheel);
    EXPECT_EQ(box.fontInfo().pointSizeF(), before);
}
