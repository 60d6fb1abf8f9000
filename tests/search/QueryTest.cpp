// Query mode: the swap of the cursor, and every way out of it.
#include "search/QueryFixture.h"

namespace {

class Query : public QueryFixture {};

} // namespace

TEST_F(Query, swapsTheCursorForTheHits) {
    query(u"light"_s);
    expectFlags(On, On);
    EXPECT_TRUE(areListsDisabled());
    EXPECT_FALSE(isLoaded<frmQuery>());
    EXPECT_EQ(main().focusWidget(), &main().txtFind);
    EXPECT_EQ(listed(), u"Genesis 1:2"_s);
    EXPECT_TRUE(main().Caption().contains(u"[Genesis 1:2]"_s));
    EXPECT_EQ(
        pageLines(), (QStringList{
                         u"Genesis 1:2 There was light, and love."_s,
                         u"Genesis 1:4 Light of lights and peace"_s}));
    EXPECT_EQ(
        hits(), (QStringList{u"1:1:2"_s, u"1:1:4"_s, u"1:2:7"_s, u"19:119:176"_s, u"40:1:3"_s}));
    EXPECT_FALSE(isTableCursor());
    EXPECT_EQ(main().cursor().shape(), Qt::ArrowCursor);
}

TEST_F(Query, marksItsWordsOnThePage) {
    query(u"light"_s, u"peace"_s);
    EXPECT_EQ(QueryWords[0], u"light"_s);
    EXPECT_EQ(QueryWords[1], u"peace"_s);
    for (const QString& word : {u"light"_s, u"lights"_s, u"peace"_s}) {
        main().txtMain.setSelStart(static_cast<int>(main().txtMain.Text().indexOf(word)));
        main().txtMain.setSelLength(5);
        EXPECT_TRUE(main().txtMain.SelUnderline()) << word.toStdString();
        EXPECT_EQ(main().txtMain.SelColor(), QColor(0, 0, 255));
    }
}

TEST_F(Query, withOneHitShowsIt) {
    query(u"amen"_s);
    EXPECT_EQ(pageLines(), QStringList{u"Revelation 22:21 Amen to one."_s});
    EXPECT_EQ(position(), u"66:22:21"_s);
    query(u"again love"_s);
    EXPECT_EQ(pageLines(), QStringList{u"Matthew 1:3 The LIGHT; again love"_s});
}

TEST_F(Query, theLastRunLosesNoVerse) {
    query(u"verse 66:22:"_s);
    EXPECT_EQ(pageLines().size(), 20);
    EXPECT_TRUE(pageLines().constFirst().contains(u"22:1 "_s));
    EXPECT_EQ(position(), u"66:22:2"_s);
}

TEST_F(Query, bothWordsAndEitherWordsWholeWordsAndTheScope) {
    struct Case {
        bool both, whole;
        int scope, book;
        QStringList hits;
    };
    const Case cases[] = {
        {true, false, 0, 0, {u"1:1:2"_s, u"40:1:3"_s}},
        {true, true, 0, 0, {u"1:1:2"_s}},
        {false, true, 0, 0, {u"1:1:2"_s, u"1:2:7"_s, u"19:119:176"_s, u"40:1:3"_s}},
        {false, true, 1, 0, {u"1:1:2"_s, u"1:2:7"_s, u"19:119:176"_s}},
        {false, true, 2, 0, {u"40:1:3"_s}},
        {false, true, 0, 19, {u"19:119:176"_s}}};
    for (const Case& each : cases) {
        open([&] {
            window().txtQuery(0).setText(u"light"_s);
            window().txtQuery(1).setText(u"love"_s);
            window().optAndOr(each.both ? 0 : 1).setValue(true);
            window().chkMatchCase.setValue(each.whole);
            window().cboScope.setListIndex(each.scope);
            if (each.book > 0)
                window().cboBook.setListIndex(each.book);
            ok();
        });
        EXPECT_EQ(hits(), each.hits) << QuerySQL.toStdString();
    }
}

TEST_F(Query, bothWordsTheSameAreBothInTheText) {
    query(u"light"_s, u"light"_s);
    EXPECT_EQ(QuerySQL.count(u"*light*"_s), 2);
    EXPECT_EQ(hits().size(), 5);
}

TEST_F(Query, withoutAHitStaysOpenAtTheReadingPosition) {
    rsBible.Seek(u"="_s, 40, 2, 5);
    desktop.expectWindow([this](QWidget&) {
        window().txtQuery(0).setText(u"nowhere"_s);
        desktop.expectMessage(notFound);
        ok();
        EXPECT_TRUE(window().isVisible());
        EXPECT_EQ(window().Caption(), u"Query for Verses"_s);
        EXPECT_TRUE(window().QueryEmpty);
        expectFlags(On, On);
        EXPECT_TRUE(areListsDisabled());
        EXPECT_EQ(position(), u"40:2:5"_s);
        EXPECT_EQ(listed(), u"Matthew 2:5"_s);
        cancel();
    });
    main().cmdMain(5).setValue(true);
    expectFlags(On, Off);
    EXPECT_TRUE(areListsDisabled());
    endQuery();
    expectFlags(Off, Off);
    EXPECT_TRUE(areListsEnabled());
    EXPECT_TRUE(main().Caption().contains(u"[Matthew 2:5]"_s));
    EXPECT_TRUE(isTableCursor());
}

TEST_F(Query, withoutAHitCanBeTriedAgain) {
    desktop.expectWindow([this](QWidget&) {
        window().txtQuery(0).setText(u"nowhere"_s);
        desktop.expectMessage(notFound);
        ok();
        window().txtQuery(0).setText(u"light"_s);
        ok();
    });
    main().cmdMain(5).setValue(true);
    expectFlags(On, On);
    EXPECT_EQ(hits().size(), 5);
}

TEST_F(Query, withoutAHitInsideAQueryGoesBackToTheHit) {
    query(u"light"_s);
    rsBible.FindFirst(u"book = 40"_s);
    desktop.expectWindow([this](QWidget&) {
        EXPECT_EQ(window().OldBook.toInt(), 40);
        window().txtQuery(0).setText(u"nowhere"_s);
        desktop.expectMessage(notFound);
        ok();
        EXPECT_EQ(position(), u"40:1:3"_s);
        EXPECT_TRUE(isTableCursor());
        cancel();
    });
    main().cmdMain(5).setValue(true);
    endQuery();
    expectFlags(Off, Off);
}

TEST_F(Query, aQuoteEndsInTheErrorOfTheStoreAndTheTableCursor) {
    open([this] {
        window().txtQuery(0).setText(u"a\"b"_s);
        desktop.expectMessage(sqlErrorOf(window()));
        ok();
    });
    expectFlags(On, On);
    EXPECT_TRUE(areListsDisabled());
    EXPECT_TRUE(isTableCursor());
    endQuery();
    expectFlags(Off, Off);
    EXPECT_TRUE(areListsEnabled());
}

TEST_F(Query, aNewOneTakesThePlaceOfTheOldOne) {
    query(u"light"_s);
    query(u"peace"_s);
    EXPECT_EQ(hits(), QStringList{u"1:1:4"_s});
    expectFlags(On, On);
    endQuery();
    EXPECT_TRUE(isTableCursor());
}

TEST_F(Query, endsByShortcutMenuAndButtonOnTheVerseThatTheListsShow) {
    const std::function<void()> ways[] = {
        [] { main().cmdMain(6).setValue(true); }, [] { main().mnuSearch(1).trigger(); },
        [] { QTest::keyClick(&main(), Qt::Key_J, Qt::ControlModifier); }};
    for (const auto& way : ways) {
        query(u"light"_s);
        rsBible.FindFirst(u"book = 40"_s);
        main().showPlaceInLists();
        activate(main());
        way();
        expectFlags(Off, Off);
        EXPECT_TRUE(areListsEnabled());
        EXPECT_TRUE(main().Caption().contains(u"[Matthew 1:3]"_s));
        EXPECT_EQ(pageLines().size(), 23);
        EXPECT_TRUE(isTableCursor());
    }
}

TEST_F(Query, pagedThroughEndsWhereTheReaderIs) {
    VersesPerPage = 1;
    query(u"light"_s);
    main().txtMain.SetFocus();
    QTest::keyClick(&main().txtMain, Qt::Key_PageDown);
    const QString place = listed();
    EXPECT_NE(place, u"Genesis 1:2"_s);
    endQuery();
    EXPECT_TRUE(main().Caption().contains(u'[' + place + u']'));
}

TEST_F(Query, pagedToItsLastHitEndsThere) {
    for (const Qt::Key key : {Qt::Key_PageDown, Qt::Key_Down}) {
        rsBible.MoveFirst();
        main().showPlaceInLists();
        query(u"light"_s);
        for (int press = 0; press < 8; ++press) {
            main().txtMain.SetFocus();
            QTest::keyClick(&main().txtMain, key);
        }
        EXPECT_EQ(pageLines(), QStringList{u"Matthew 1:3 The LIGHT; again love"_s});
        EXPECT_EQ(listed(), u"Matthew 1:3"_s);
        endQuery();
        EXPECT_TRUE(main().Caption().contains(u"[Matthew 1:3]"_s));
    }
}

TEST_F(Query, pagedBackToItsFirstHitEndsThere) {
    query(u"light"_s);
    for (const Qt::Key key : {Qt::Key_PageDown, Qt::Key_PageDown, Qt::Key_PageUp}) {
        main().txtMain.SetFocus();
        QTest::keyClick(&main().txtMain, key);
    }
    EXPECT_EQ(pageLines().constFirst(), u"Genesis 1:2 There was light, and love."_s);
    EXPECT_EQ(listed(), u"Genesis 1:2"_s);
    endQuery();
    EXPECT_TRUE(main().Caption().contains(u"[Genesis 1:2]"_s));
}

TEST_F(Query, cancelKeepsTheQueryThatOpeningFound) {
    query(u"light"_s);
    open([] {
        EXPECT_EQ(InQuery, Off);
        EXPECT_EQ(QueryLock, Off);
        cancel();
    });
    EXPECT_EQ(QueryCancelled, 999);
    expectFlags(On, Off);
    EXPECT_EQ(hits().size(), 5);
    EXPECT_TRUE(areListsDisabled());
    EXPECT_EQ(main().focusWidget(), &main().txtFind);
    endQuery();
    EXPECT_TRUE(areListsEnabled());
}

TEST_F(Query, cancelWithoutAQueryLeavesThePlainCursor) {
    EXPECT_EQ(QueryCancelled, 0);
    open([] { cancel(); });
    EXPECT_EQ(QueryCancelled, 999);
    expectFlags(Off, Off);
    EXPECT_TRUE(areListsEnabled());
    EXPECT_TRUE(isTableCursor());
}

TEST_F(Query, theTestamentIsRefusedWhileItIsOn) {
    query(u"light"_s);
    desktop.expectMessage(
        {u"Feature unavailable while in a Query. Press Ctrl+J to end the query."_s,
         u"Tool Not Available"_s, MessageIcon::Information});
    main().cmbTestament_Click();
    EXPECT_EQ(hits().size(), 5);
}

TEST_F(Query, aNoteBeingTypedGoesToItsOwnVerse) {
    rsBible.Seek(u"="_s, 40, 2, 1);
    VersesPerPage = 22;
    main().UpDateBibleText(true);
    ASSERT_EQ(position(), u"40:2:1"_s);
    main().txtNote.SetFocus();
    QTest::keyClicks(&main().txtNote, u"mine"_s);
    query(u"light"_s);
    EXPECT_EQ(main().txtNote.Text(), u" "_s);
    endQuery();
    rsBible.Seek(u"="_s, 40, 2, 1);
    EXPECT_EQ(rsBible.Fields(5).Value().toString().trimmed(), u"mine"_s);
}

TEST_F(Query, aTranslationFileThatIsGoneIsToldAndTheQueryStillRuns) {
    QString& file = BibleFile[static_cast<size_t>(CurrentBible)];
    desktop.expectWindow([&](QWidget&) {
        const QString name = std::exchange(file, u"gone.mdb"_s);
        window().txtQuery(0).setText(u"light"_s);
        desktop.expectMessage(missingFile(u"Plug in not found"_s));
        ok();
        file = name;
    });
    main().cmdMain(5).setValue(true);
    EXPECT_EQ(hits().size(), 5);
    endQuery();
    EXPECT_TRUE(isTableCursor());
}

TEST_F(Query, whateverIsTypedEndsInABoxOrInTrueHitsAndChangesNoFile) {
    const QByteArray before = contentOf(programFile(u"KJV.mdb"_s));
    const QStringList texts = oddTexts() + singleQuotedTexts() + doubleQuotedTexts()
                              + QStringList{u"*"_s, u"**"_s, u" "_s, u"light*love"_s};
    for (const QString& text : texts) {
        for (const bool second : {false, true})
            typeAnything(text, second);
    }
    EXPECT_EQ(contentOf(programFile(u"KJV.mdb"_s)), before);
}

TEST_F(Query, aQuoteThatHappensToStayWellFormedIsTakenAsItIs) {
    query(u"nowhere*\" OR body like \"*amen"_s);
    EXPECT_EQ(hits(), QStringList{u"66:22:21"_s});
}
