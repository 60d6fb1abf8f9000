// The searches while the file of the open translation is gone: each opening anew is told, and the
// old cursor stays. Once the file is back, End Query makes good what was left undone.
#include "search/FindBarFixture.h"
#include "search/HolyTextFindFixture.h"
#include "search/NoteSearchFixture.h"
#include "search/QueryFixture.h"
#include "search/SearchTexts.h"
#include "search/SimpleFindFixture.h"

#include <optional>
#include <utility>

namespace {

// The catalogue names another file for as long as it lives.
class LostFile {
public:
    LostFile()
        : m_name(std::exchange(file(), u"gone.mdb"_s)) {}
    ~LostFile() { file() = m_name; }
    Q_DISABLE_COPY_MOVE(LostFile)

private:
    static QString& file() { return BibleFile[static_cast<size_t>(CurrentBible)]; }

    QString m_name;
};

// What a search by criteria says on the cursor that is left.
QString complaintOfTableCursor() {
    try {
        rsBible.FindFirst(u"book = 1"_s);
    } catch (const Error& error) {
        return error.text();
    }
    return u"the cursor finds"_s;
}

class FindBarWithoutFile : public FindBarFixture {};
class SimpleFindWithoutFile : public SimpleFindFixture {};
class HolyTextFindWithoutFile : public HolyTextFindFixture {};
class NoteSearchWithoutFile : public NoteSearchFixture {};

class QueryWithoutFile : public QueryFixture {
protected:
    void endWithoutFile() {
        const LostFile lost;
        desktop.expectMessage(missingFile(u"Plug in not found"_s));
        endQuery();
    }
};

} // namespace

TEST_F(FindBarWithoutFile, toldTwiceTheReaderStays) {
    const LostFile lost;
    for (const QString& title : {u"Not Found"_s, u"Plug in not found"_s})
        desktop.expectMessage(missingFile(title));
    findNext(u"grace"_s);
    EXPECT_EQ(position(), u"1:1:1"_s);
    expectReadingAgain();
}

TEST_F(SimpleFindWithoutFile, findsNothingAndClosesOnTheVerseThatTheListsShow) {
    window().cboBook.setListIndex(1);
    const LostFile lost;
    desktop.expectMessage(missingFile(u"Not Found"_s));
    inWindow([this](frmSimpleFind& find) {
        search(find, u"grace"_s);
        EXPECT_EQ(listed(), u"Exodus 1 1"_s);
        EXPECT_EQ(find.Caption(), u"Simple Search of Verses"_s);
        EXPECT_NE(find.cursor().shape(), Qt::WaitCursor);
        desktop.expectMessage(missingFile(u"Plug in not found"_s));
        press(find, Close);
    });
    EXPECT_EQ(pageTop(), u"Exodus 1:1 Peace with grace?"_s);
    expectReadingAgain();
}

TEST_F(HolyTextFindWithoutFile, tellsOfTheCursorThatCannotFindAndClosesWhereItOpened) {
    rsBible.Seek(u"="_s, 2, 1, 1);
    const LostFile lost;
    desktop.expectMessage(missingFile(u"Not Found"_s));
    inWindow([this](frmHolyTextFind& find) {
        desktop.expectMessage({complaintOfTableCursor(), u"Lumenvia"_s, MessageIcon::Exclamation});
        search(find, u"grace"_s);
        EXPECT_EQ(find.Caption(), u"Advanced Search of Verses"_s);
        EXPECT_NE(find.cursor().shape(), Qt::WaitCursor);
        desktop.expectMessage(missingFile(u"Plug in not found"_s));
        press(find, Close);
    });
    EXPECT_EQ(pageTop(), u"Exodus 1:1 Peace with grace?"_s);
    expectReadingAgain();
}

TEST_F(NoteSearchWithoutFile, aSearchEndsInTheErrorAndTheReaderStays) {
    rsBible.Seek(u"="_s, 40, 2, 3);
    const LostFile lost;
    open([this] {
        window().txtNoteSearch.setText(u"thought"_s);
        desktop.expectMessage(missingFile(u"Not Found"_s));
        desktop.expectMessage(
            {u"Error in Note Search: "_s + complaintOfTableCursor(), u"Error"_s,
             MessageIcon::Information});
        desktop.expectMessage(missingFile(u"Plug in not found"_s));
        press(First);
        EXPECT_FALSE(isLoaded<frmNoteSearch>());
    });
    expectPlace(u"Matthew 2:3"_s, u"40:2:3"_s, u" "_s);
}

TEST_F(NoteSearchWithoutFile, closingIsToldTwiceAndTheReaderStays) {
    rsBible.Seek(u"="_s, 40, 2, 3);
    const LostFile lost;
    open([this] {
        desktop.expectMessage(missingFile(u"Not Found"_s));
        desktop.expectMessage(missingFile(u"Plug in not found"_s));
        press(Close);
    });
    expectPlace(u"Matthew 2:3"_s, u"40:2:3"_s, u" "_s);
}

TEST_F(QueryWithoutFile, endingIsToldAndIsMadeGoodWhenTheFileIsBack) {
    query(u"light"_s);
    const QStringList page = pageLines();
    endWithoutFile();
    EXPECT_EQ(pageLines(), page);
    expectFlags(Off, Off);
    EXPECT_TRUE(areListsEnabled());
    EXPECT_EQ(listed(), u"Genesis 1:2"_s);
    EXPECT_FALSE(isTableCursor());
    endWithoutFile();
    endQuery();
    EXPECT_TRUE(main().Caption().contains(u"[Genesis 1:2]"_s));
    EXPECT_EQ(pageLines().size(), 30);
    EXPECT_TRUE(isTableCursor());
}

TEST_F(QueryWithoutFile, aBookThatIsPickedAfterwardsKeepsItsFirstVerseInTheLists) {
    query(u"light"_s);
    endWithoutFile();
    main().cboBook.setListIndex(39);
    EXPECT_EQ(listed(), u"Matthew 1:1"_s);
    main().cboVerse.setListIndex(4);
    EXPECT_EQ(listed(), u"Matthew 1:5"_s);
    endQuery();
    EXPECT_TRUE(main().Caption().contains(u"[Matthew 1:5]"_s));
}

TEST_F(SimpleFindWithoutFile, aFileLostWhileItIsOpenIsToldByCloseAndByEndQuery) {
    std::optional<LostFile> lost;
    inWindow([&](frmSimpleFind& find) {
        search(find, u"begins"_s);
        lost.emplace();
        for (int told = 0; told < 2; ++told)
            desktop.expectMessage(missingFile(u"Plug in not found"_s));
        press(find, Close);
    });
    EXPECT_EQ(pageTop(), u"Matthew 1:2 grace begins this one."_s);
    lost.reset();
    window().cmdMain(6).setValue(true);
    EXPECT_EQ(pageTop(), u"Matthew 1:2 grace begins this one."_s);
    expectReadingAgain();
}

TEST_F(HolyTextFindWithoutFile, aFileLostWhileItIsOpenIsToldAndEndQueryMakesItGood) {
    std::optional<LostFile> lost;
    inWindow([&](frmHolyTextFind& find) {
        search(find, u"begins"_s);
        lost.emplace();
        desktop.expectMessage(missingFile(u"Plug in not found"_s));
        press(find, Close);
    });
    EXPECT_EQ(pageTop(), u"Matthew 1:2 grace begins this one."_s);
    EXPECT_TRUE(window().cboBook.Enabled());
    lost.reset();
    window().cmdMain(6).setValue(true);
    EXPECT_EQ(pageTop(), u"Matthew 1:2 grace begins this one."_s);
    expectReadingAgain();
}
