// What the windows tell while they search: their captions, and the pointer.
#include "search/FindBarFixture.h"
#include "search/HolyTextFindFixture.h"
#include "search/NoteSearchFixture.h"
#include "search/SimpleFindFixture.h"
#include "search/WindowWatch.h"

namespace {

class FindBarSigns : public FindBarFixture {};
class SimpleFindSigns : public SimpleFindFixture {};
class HolyTextFindSigns : public HolyTextFindFixture {};
class NoteSearchSigns : public NoteSearchFixture {};

const QString simpleCaption = u"Simple Search of Verses"_s;
const QString advancedCaption = u"Advanced Search of Verses"_s;

} // namespace

TEST_F(FindBarSigns, theTitleNamesTheTextUntilThePageComes) {
    window().txtFind.setText(u"begins"_s);
    WindowWatch watch(window());
    window().cmdMain(8).setValue(true);
    EXPECT_EQ(
        watch.takeSigns(), (QStringList{
                               u"wait"_s, u"Searching for begins"_s,
                               u"Lumenvia Professional King James [Matthew 1:2] "_s, u"normal"_s}));
}

TEST_F(FindBarSigns, theBoxOfAMissComesUnderTheNormalPointer) {
    bool waits = true;
    desktop.expectMessage(
        {u"Prior to the current verse no other contained the text: \nxyzzy"_s, u"No More Found"_s,
         MessageIcon::Information},
        Answer::Ok, [&] { waits = window().cursor().shape() == Qt::WaitCursor; });
    findPrevious(u"xyzzy"_s);
    EXPECT_FALSE(waits);
}

TEST_F(SimpleFindSigns, tellsOfTheMoveToTheScopeOnceAndOfEachSearch) {
    inWindow([](frmSimpleFind& find) {
        WindowWatch watch(find);
        search(find, u"grace"_s);
        EXPECT_EQ(
            watch.takeSigns(), (QStringList{
                                   u"Working..."_s, u"Moving to new Book"_s, u"wait"_s,
                                   u"Searching for grace"_s, u"normal"_s, simpleCaption}));
        const QStringList signs = {
            u"Working..."_s, u"wait"_s, u"Searching for grace"_s, u"normal"_s, simpleCaption};
        for (const Press button : {Next, Previous, First}) {
            press(find, button);
            EXPECT_EQ(watch.takeSigns(), signs) << button;
        }
        press(find, Close);
    });
}

TEST_F(SimpleFindSigns, tellsOfTheWayBackToGenesis) {
    inWindow([this](frmSimpleFind& find) {
        search(find, u"begins"_s);
        WindowWatch watch(find);
        expectNotFound(Answer::Yes);
        expectBeginning();
        press(find, Next);
        EXPECT_EQ(
            watch.takeSigns(), (QStringList{
                                   u"Working..."_s, u"wait"_s, u"Searching for begins"_s,
                                   u"normal"_s, u"Moving to Genesis"_s, simpleCaption}));
        press(find, Close);
    });
}

TEST_F(SimpleFindSigns, itsBoxesComeUnderTheNormalPointer) {
    inWindow([this](frmSimpleFind& find) {
        int boxes = 0;
        const auto look = [&] {
            ++boxes;
            EXPECT_EQ(find.Caption(), u"Searching for xyzzy"_s);
            EXPECT_NE(find.cursor().shape(), Qt::WaitCursor);
        };
        desktop.expectMessage(
            {u"There were no verses found."_s, u"Not Found"_s, MessageIcon::Question}, Answer::Ok,
            look);
        search(find, u"xyzzy"_s, First);
        desktop.expectMessage(
            {u"Prior to the current verse no other contained the text: \nxyzzy"_s,
             u"No More Found"_s, MessageIcon::Information},
            Answer::Ok, look);
        search(find, u"xyzzy"_s, Previous);
        EXPECT_EQ(boxes, 2);
        press(find, Close);
    });
}

TEST_F(SimpleFindSigns, askingForATextTellsNothing) {
    inWindow([this](frmSimpleFind& find) {
        WindowWatch watch(find);
        desktop.expectMessage(
            {u"Please enter some text to search for."_s, u"Need Text"_s, MessageIcon::Information});
        search(find, u"g"_s);
        EXPECT_EQ(watch.takeSigns(), QStringList());
        press(find, Close);
    });
}

TEST_F(HolyTextFindSigns, waitsForTheHitAndAgainForThePage) {
    inWindow([](frmHolyTextFind& find) {
        WindowWatch watch(find);
        const QStringList signs = {u"wait"_s, u"Searching..."_s, u"normal"_s,
                                   u"wait"_s, u"normal"_s,       advancedCaption};
        search(find, u"grace"_s);
        EXPECT_EQ(watch.takeSigns(), signs);
        press(find, Next);
        EXPECT_EQ(watch.takeSigns(), signs);
        press(find, Previous);
        EXPECT_EQ(watch.takeSigns(), signs);
        press(find, Close);
    });
}

TEST_F(HolyTextFindSigns, askingForAWordLeavesItsCaption) {
    inWindow([this](frmHolyTextFind& find) {
        bool waits = true;
        desktop.expectMessage(
            {u"Please enter some text to search for."_s, u"Need Text"_s, MessageIcon::Information},
            Answer::Ok, [&] { waits = find.cursor().shape() == Qt::WaitCursor; });
        press(find, Next);
        EXPECT_FALSE(waits);
        EXPECT_EQ(find.Caption(), u"Searching..."_s);
        EXPECT_NE(find.cursor().shape(), Qt::WaitCursor);
        search(find, u"grace"_s);
        EXPECT_EQ(find.Caption(), advancedCaption);
        press(find, Close);
    });
}

TEST_F(HolyTextFindSigns, theQuestionComesUnderTheNormalPointer) {
    inWindow([this](frmHolyTextFind& find) {
        bool waits = true;
        desktop.expectMessage(
            {u"No verses found from this point FORWARD.\r\n\r\n"
             u"Would you like to search from the beginning of the Bible?"_s,
             u"Not Found"_s, MessageIcon::Question, MessageButtons::YesNo},
            Answer::No, [&] { waits = find.cursor().shape() == Qt::WaitCursor; });
        search(find, u"xyzzy"_s);
        EXPECT_FALSE(waits);
        press(find, Close);
    });
}

TEST_F(NoteSearchSigns, waitsForEachPress) {
    open([] {
        window().txtNoteSearch.setText(u"thought"_s);
        WindowWatch watch(window());
        for (const int button : {First, Next, Previous}) {
            press(button);
            EXPECT_EQ(watch.takeSigns(), (QStringList{u"wait"_s, u"normal"_s})) << button;
        }
        press(Close);
    });
}
