// The viewer of formatted text.
#include "output/frmMessage.h"

#include "controls/Forms.h"
#include "output/frmEmail.h"
#include "settings/SettingsStore.h"
#include "support/ProgramFixture.h"

#include <QClipboard>
#include <QFile>
#include <QScreen>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const Message highlightFirst{
    u"Please highlight what you'd like to print. (Press CTRL+A to highlight all)."_s, u"Lumenvia"_s,
    MessageIcon::Information, MessageButtons::Ok};

class MessageViewer : public ProgramFixture {
protected:
    static frmMessage& window() { return form<frmMessage>(); }

    static void open() {
        window().Load();
        window().rtfMessage.setTextRTF(u"{\\rtf1 {\\b logos} word, speech}"_s);
        window().Show();
        window().activateWindow();
        QCoreApplication::processEvents();
    }

    static void press(const QString& key) {
        QTest::mouseClick(&window().Toolbar.Buttons(key), Qt::LeftButton);
    }

    static void store(const QString& key, const QString& value) {
        SaveSetting(QCoreApplication::applicationName(), u"options"_s, key, value);
    }

    static void storePlace(
        const QString& left, const QString& top, const QString& width, const QString& height) {
        store(u"mMainLeft"_s, left);
        store(u"mMainTop"_s, top);
        store(u"mMainWidth"_s, width);
        store(u"mMainHeight"_s, height);
    }

    static int stored(const QString& key) {
        return GetSetting(QCoreApplication::applicationName(), u"options"_s, key).toInt();
    }

    // Where the frame stands, and how large the window is in it.
    static QRect place() { return {window().pos(), window().size()}; }

    static bool isOnScreen() {
        return window().screen()->availableGeometry().contains(window().frameGeometry());
    }
};

} // namespace

TEST_F(MessageViewer, showsAFormattedTextToReadAndNotToChange) {
    open();
    EXPECT_EQ(window().Caption(), u"Lumenvia"_s);
    QTest::keyClicks(&window().rtfMessage, u"typed"_s);
    EXPECT_EQ(window().rtfMessage.Text(), u"logos word, speech"_s);
    window().rtfMessage.setSelStart(0);
    window().rtfMessage.setSelLength(3);
    EXPECT_TRUE(window().rtfMessage.SelBold());
}

TEST_F(MessageViewer, standsFirstAtAThirdOfAnInchFiveInchesLarge) {
    open();
    EXPECT_EQ(place(), QRect(33, 33, 500, 500));
}

TEST_F(MessageViewer, standsWhereItWasClosed) {
    open();
    window().move(120, 60);
    window().resize(430, 310);
    press(u"Exit"_s);
    EXPECT_EQ(stored(u"mMainLeft"_s), 1800);
    EXPECT_EQ(stored(u"mMainTop"_s), 900);
    EXPECT_EQ(stored(u"mMainWidth"_s), 6450);
    EXPECT_EQ(stored(u"mMainHeight"_s), 4650);
    open();
    EXPECT_EQ(place(), QRect(120, 60, 430, 310));
}

TEST_F(MessageViewer, closedMaximizedItKeepsItsPlaceOfBefore) {
    open();
    window().showMaximized();
    QCoreApplication::processEvents();
    ASSERT_NE(window().width(), 500);
    press(u"Exit"_s);
    EXPECT_EQ(stored(u"mMainWidth"_s), 7500);
    EXPECT_EQ(stored(u"mMainHeight"_s), 7500);
}

TEST_F(MessageViewer, aPlaceBesideTheScreenIsMovedOntoIt) {
    for (const QString& far : {u"-30000"_s, u"90000"_s, u"999999"_s, u"-1"_s}) {
        storePlace(far, far, u"6000"_s, u"4500"_s);
        open();
        EXPECT_TRUE(isOnScreen()) << far.toStdString();
        EXPECT_EQ(window().size(), QSize(400, 300)) << far.toStdString();
        window().Unload();
    }
}

TEST_F(MessageViewer, aSizeThatNoScreenHasIsCut) {
    storePlace(u"500"_s, u"500"_s, u"999999"_s, u"999999"_s);
    open();
    EXPECT_TRUE(isOnScreen());
    EXPECT_GT(window().width(), window().screen()->availableSize().width() * 0.9);
    EXPECT_GT(window().height(), window().screen()->availableSize().height() * 0.9);
}

TEST_F(MessageViewer, aSizeOfNothingIsAsLargeAsItsButtonsNeed) {
    for (const QString& small : {u"0"_s, u"-500"_s, u"15"_s}) {
        storePlace(u"500"_s, u"500"_s, small, small);
        open();
        EXPECT_EQ(window().size(), window().minimumSizeHint()) << small.toStdString();
        window().Unload();
    }
}

TEST_F(MessageViewer, whatIsNoNumberIsTheFirstPlace) {
    for (const QString& text :
         {u"wide"_s, u""_s, u"nan"_s, u"inf"_s, u"1e300"_s, u"-1e300"_s, u"5x"_s}) {
        storePlace(text, text, text, text);
        open();
        EXPECT_EQ(place(), QRect(33, 33, 500, 500)) << text.toStdString();
        window().Unload();
    }
}

TEST_F(MessageViewer, mailsItsPlainTextAfterItHasClosed) {
    open();
    desktop.expectWindow([](QWidget& mail) {
        EXPECT_FALSE(isLoaded<frmMessage>());
        EXPECT_EQ(dynamic_cast<frmEmail&>(mail).EmailBody, u"logos word, speech"_s);
        mail.close();
    });
    press(u"email"_s);
}

TEST_F(MessageViewer, printsNothingWithoutASelection) {
    open();
    window().Toolbar.Buttons(u"Print"_s).SetFocus();
    desktop.expectMessage(highlightFirst);
    press(u"Print"_s);
    EXPECT_EQ(window().focusWidget(), &window().rtfMessage);
}

TEST_F(MessageViewer, printsTheSelection) {
    open();
    window().rtfMessage.setSelStart(0);
    window().rtfMessage.setSelLength(5);
    const QString paper = programFile(u"paper.pdf"_s);
    desktop.expectPrinter(paper);
    press(u"Print"_s);
    EXPECT_GT(QFile(paper).size(), 0);
    EXPECT_TRUE(isLoaded<frmMessage>());
}

TEST_F(MessageViewer, aCancelledPrintDialogPrintsNothing) {
    open();
    window().rtfMessage.selectAll();
    desktop.expectPrinter({});
    press(u"Print"_s);
    EXPECT_TRUE(isLoaded<frmMessage>());
}

TEST_F(MessageViewer, copiesTheSelection) {
    open();
    QGuiApplication::clipboard()->setText(u"before"_s);
    window().rtfMessage.setSelStart(6);
    window().rtfMessage.setSelLength(4);
    press(u"Copy"_s);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"word"_s);
    EXPECT_EQ(window().focusWidget(), &window().rtfMessage);
}

TEST_F(MessageViewer, exitEscapeAndTheTitleBarCloseIt) {
    open();
    press(u"Exit"_s);
    EXPECT_FALSE(isLoaded<frmMessage>());
    open();
    QTest::keyClick(&window().rtfMessage, Qt::Key_Escape);
    EXPECT_FALSE(isLoaded<frmMessage>());
    open();
    window().close();
    EXPECT_FALSE(isLoaded<frmMessage>());
}
