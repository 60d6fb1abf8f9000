// Query mode beside its straight way: errors, cursors without a row, and what is shared with the
// rest of the program.
#include "search/QueryFixture.h"
#include "search/WindowWatch.h"

namespace {

class QueryStates : public QueryFixture {
protected:
    void startOn(const Verses& changed) {
        addTranslation(u"KJV.mdb"_s, changed);
        restartProgram();
        QCoreApplication::processEvents();
    }

    // A query without a hit, given up.
    void emptyQuery() {
        open([this] {
            window().txtQuery(0).setText(u"nowhere"_s);
            desktop.expectMessage(notFound);
            ok();
            cancel();
        });
    }

    // A query whose text the store does not understand.
    void spoiledQuery() {
        open([this] {
            window().txtQuery(0).setText(u"a\"b"_s);
            desktop.expectMessage(sqlErrorOf(window()));
            ok();
        });
    }
};

} // namespace

TEST_F(QueryStates, behindAnSqlErrorTheFirstPageStandsInAQuery) {
    rsBible.Seek(u"="_s, 40, 2, 5);
    spoiledQuery();
    EXPECT_FALSE(isLoaded<frmQuery>());
    expectFlags(On, On);
    EXPECT_TRUE(areListsDisabled());
    EXPECT_EQ(listed(), u"Genesis 1:1"_s);
    EXPECT_EQ(pageLines().constFirst(), u"Genesis 1:1 Verse 1:1:1."_s);
    EXPECT_EQ(pageLines().size(), 31);
    EXPECT_EQ(main().focusWidget(), &main().txtFind);
    EXPECT_EQ(main().cursor().shape(), Qt::ArrowCursor);
    EXPECT_TRUE(isTableCursor());
}

TEST_F(QueryStates, behindAnSqlErrorTheReaderTurnsPagesAndTheQueryEnds) {
    spoiledQuery();
    main().txtMain.SetFocus();
    QTest::keyClick(&main().txtMain, Qt::Key_PageDown);
    EXPECT_FALSE(main().Caption().contains(u"[Genesis 1:1]"_s));
    endQuery();
    expectFlags(Off, Off);
    EXPECT_TRUE(areListsEnabled());
    EXPECT_TRUE(main().Caption().contains(u'[' + listed() + u']'));
}

TEST_F(QueryStates, emptyAndSpoiledQueriesEndByShortcutMenuAndButton) {
    const std::function<void()> ways[] = {
        [] { main().cmdMain(6).setValue(true); }, endQuery,
        [] { QTest::keyClick(&main(), Qt::Key_J, Qt::ControlModifier); }};
    for (const bool spoiled : {false, true}) {
        for (const auto& way : ways) {
            if (spoiled)
                spoiledQuery();
            else
                emptyQuery();
            ASSERT_EQ(InQuery, On);
            ASSERT_TRUE(areListsDisabled());
            activate(main());
            way();
            expectFlags(Off, Off);
            EXPECT_TRUE(areListsEnabled());
            EXPECT_TRUE(isTableCursor());
        }
    }
}

TEST_F(QueryStates, behindAnSqlErrorTheNextQueryIsAsGoodAsEver) {
    spoiledQuery();
    query(u"light"_s);
    EXPECT_EQ(hits().size(), 5);
    endQuery();
    expectFlags(Off, Off);
    EXPECT_TRUE(isTableCursor());
}

TEST_F(QueryStates, theBoxOfAnSqlErrorComesInsideTheSearch) {
    desktop.expectWindow([this](QWidget&) {
        window().txtQuery(0).setText(u"a\"b"_s);
        QString caption;
        desktop.expectMessage(
            sqlErrorOf(window()), Answer::Ok, [&] { caption = window().Caption(); });
        ok();
        EXPECT_EQ(caption, u"Searching..."_s);
    });
    main().cmdMain(5).setValue(true);
}

TEST_F(QueryStates, tellsOfTheSearchAndOfItsEmptyEnd) {
    desktop.expectWindow([this](QWidget&) {
        WindowWatch watch(window());
        window().txtQuery(0).setText(u"nowhere"_s);
        bool waits = true;
        desktop.expectMessage(
            notFound, Answer::Ok, [&] { waits = window().cursor().shape() == Qt::WaitCursor; });
        ok();
        EXPECT_FALSE(waits);
        EXPECT_EQ(
            watch.takeSigns(),
            (QStringList{u"wait"_s, u"Searching..."_s, u"normal"_s, u"Query for Verses"_s}));
        cancel();
    });
    main().cmdMain(5).setValue(true);
}

TEST_F(QueryStates, withoutAHitAndWithoutAPlaceToReturnToStandsOnTheFirstVerse) {
    query(u"light"_s);
    rsBible.MoveLast();
    rsBible.MoveNext(); // as the index leaves it
    desktop.expectWindow([this](QWidget&) {
        window().txtQuery(0).setText(u"nowhere"_s);
        desktop.expectMessage(notFound);
        ok();
        EXPECT_EQ(position(), u"1:1:1"_s);
        EXPECT_EQ(listed(), u"Genesis 1:1"_s);
        EXPECT_TRUE(window().QueryEmpty);
        cancel();
    });
    main().cmdMain(5).setValue(true);
    endQuery();
    EXPECT_TRUE(main().Caption().contains(u"[Genesis 1:1]"_s));
}

TEST_F(QueryStates, anEmptyQueryInsideAQueryStaysOnWhateverIsCancelledAfterwards) {
    query(u"light"_s);
    emptyQuery();
    expectFlags(On, Off);
    open([] { cancel(); });
    expectFlags(On, Off);
    EXPECT_TRUE(areListsDisabled());
    endQuery();
    expectFlags(Off, Off);
    EXPECT_TRUE(areListsEnabled());
    EXPECT_TRUE(isTableCursor());
}

TEST_F(QueryStates, onAHitThatTheListLacksTheListOfVersesStaysAndTheEndGoesByIt) {
    rsBible.Seek(u"="_s, 40, 2, 5);
    main().showPlaceInLists();
    query(u"at the end"_s);
    EXPECT_EQ(pageLines(), QStringList{u"Psalms 119:176 A light: at the end"_s});
    EXPECT_TRUE(main().Caption().contains(u"[Psalms 119:176]"_s));
    EXPECT_EQ(listed(), u"Psalms 119:5"_s);
    endQuery();
    EXPECT_TRUE(main().Caption().contains(u"[Psalms 119:5]"_s));
    EXPECT_EQ(pageLines().size(), 172);
}

TEST_F(QueryStates, cancelInAQueryShowsItsHitsAlone) {
    query(u"light"_s);
    rsBible.MoveFirst();
    main().UpDateBibleText(true);
    rsBible.MoveFirst();
    main().txtMain.setText(u"another page"_s);
    open([] { cancel(); });
    EXPECT_EQ(
        pageLines(), (QStringList{
                         u"Genesis 1:2 There was light, and love."_s,
                         u"Genesis 1:4 Light of lights and peace"_s}));
    main().txtMain.setSelStart(static_cast<int>(main().txtMain.Text().indexOf(u"light"_s)));
    main().txtMain.setSelLength(5);
    EXPECT_TRUE(main().txtMain.SelUnderline());
}

TEST_F(QueryStates, usesTheFirstTwoRowsOfItsWords) {
    query(u"light"_s, u"peace"_s);
    for (size_t row = 2; row < QueryWords.size(); ++row) {
        EXPECT_EQ(QueryWords[row], QString()) << row;
        EXPECT_EQ(QueryHistory[row], QString()) << row;
    }
    query(u"light"_s);
    EXPECT_EQ(QueryWords[1], QString());
}

TEST_F(QueryStates, aMissingWordLeavesTheTextOfTheLastQuery) {
    query(u"light"_s, u"peace"_s);
    const QString text = QuerySQL;
    open([this] {
        window().txtQuery(0).setText({});
        window().txtQuery(1).setText(u"love"_s);
        desktop.expectMessage(needText);
        ok();
        EXPECT_EQ(window().Caption(), u"Query Bible to view only certain verses"_s);
        cancel();
    });
    EXPECT_EQ(QuerySQL, text);
    EXPECT_EQ(QueryWords[0], u"light"_s);
    EXPECT_EQ(QueryWords[1], u"peace"_s);
    EXPECT_EQ(QueryHistory[1], u"love"_s);
}

TEST_F(QueryStates, endingWithoutAQueryChangesNothing) {
    rsBible.Seek(u"="_s, 40, 2, 5);
    main().txtMain.setText(u"the page"_s);
    for (const int way : {0, 1}) {
        if (way == 0)
            main().cmdMain(6).setValue(true);
        else
            endQuery();
        EXPECT_EQ(position(), u"40:2:5"_s);
        EXPECT_EQ(main().txtMain.Text(), u"the page"_s);
        expectFlags(Off, Off);
    }
    EXPECT_TRUE(areListsEnabled());
}

TEST_F(QueryStates, aNewRunKnowsNoQuery) {
    open([] {
        window().txtQuery(0).setText(u"light"_s);
        window().optAndOr(0).setValue(true);
        window().chkMatchCase.setValue(true);
        window().cboBook.setListIndex(40);
        ok();
    });
    restartProgram();
    EXPECT_EQ(QuerySQL, QString());
    open([] {
        EXPECT_EQ(window().txtQuery(0).Text(), QString());
        EXPECT_TRUE(window().optAndOr(1).Value());
        EXPECT_FALSE(window().chkMatchCase.Value());
        EXPECT_EQ(window().cboBook.ListIndex(), 0);
        cancel();
    });
}

TEST_F(QueryStates, itsHitsComeInTheOrderOfTheRows) {
    Verses other = chapterOf(40, 1, 3) + chapterOf(1, 1, 3);
    other[1].body = u"light"_s;
    other[5].body = u"light"_s;
    startOn(other);
    query(u"light"_s);
    EXPECT_EQ(hits(), (QStringList{u"40:1:2"_s, u"1:1:3"_s}));
}

TEST_F(QueryStates, findsInTheRedLettersPrefixToo) {
    Verses red = verses;
    red[1].body = QChar(30) + u"003 006Of light."_s;
    startOn(red);
    query(u"003 006"_s);
    EXPECT_EQ(pageLines(), QStringList{u"Genesis 1:2 Of light."_s});
}
