// The lines of the index: which hits it lists, and when it does without.
#include "search/IndexFixture.h"
#include "search/WindowWatch.h"
#include "store/DataFile.h"

namespace {

class IndexList : public IndexFixture {
protected:
    // Starts the program on verses of Genesis 1 with these row numbers.
    void startOn(const QList<int>& ids) {
        DataFileWriter writer(programFile(u"KJV.mdb"_s));
        createTranslationSchema(writer);
        int verse = 0;
        for (const int id : ids) {
            const QVariant place = ++verse;
            writer.insert(
                u"tblMain"_s, {id, 1, 1, place, u"Verse 1:1:"_s + place.toString(), QVariant()});
        }
        writer.finish();
        restartProgram();
        QCoreApplication::processEvents();
    }
};

// What the progress window shows, each text and each value once.
class ProgressWatch final : public QObject {
public:
    explicit ProgressWatch(frmWorking& working)
        : m_label(working.lblWorking) {
        m_label.installEventFilter(this);
        connect(&working.pbWorking, &QProgressBar::valueChanged, this, [this](int value) {
            values.append(value);
        });
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        const QString text = m_label.Caption();
        if (event->type() == QEvent::Paint && (texts.isEmpty() || texts.constLast() != text))
            texts.append(text);
        return false;
    }

    QStringList texts;
    QList<int> values;

private:
    Label& m_label;
};

} // namespace

TEST_F(IndexList, listsOneLineLessThanWantedFromTheCursorOn) {
    const std::pair<double, int> wanted[] = {{50, 49},  {0, 24},  {-3, 24},   {0.5, 24},
                                             {20, 19},  {99, 98}, {99.5, 99}, {100, 99},
                                             {150, 99}, {6, 5},   {1, 1},     {2, 1}};
    query(u"verse 19"_s);
    VersesPerPage = 2;
    for (const auto& [items, lines] : wanted) {
        NumIndexItems = items;
        rsBible.FindFirst(u"verse = 3"_s);
        open();
        EXPECT_EQ(window().lstIndex.ListCount(), lines) << items;
        EXPECT_EQ(window().lstIndex.List(0), u"Psalms 119:3 Verse 19:119:3."_s);
        EXPECT_EQ(window().IndexVerse[1].toInt(), 3);
        EXPECT_EQ(window().IndexID[1], 31 + 25 + 3);
        window().Unload();
    }
    expectNoFlag();
}

TEST_F(IndexList, startsOneHitBelowThePageTop) {
    query(u"verse 40"_s);
    main().UpDateBibleText(true);
    ASSERT_TRUE(main().Caption().contains(u"[Matthew 1:1]"_s));
    open();
    EXPECT_EQ(window().lstIndex.List(0), u"Matthew 1:2 Verse 40:1:2."_s);
}

TEST_F(IndexList, endsWithTheHitsAndLeavesTheCursorBehindThem) {
    query(u"verse 40:2"_s);
    open();
    EXPECT_EQ(window().lstIndex.ListCount(), 23);
    EXPECT_EQ(position(), u"EOF"_s);
    expectNoFlag();
    EXPECT_FALSE(isLoaded<frmWorking>());
    EXPECT_EQ(main().cursor().shape(), Qt::ArrowCursor);
}

TEST_F(IndexList, calledAgainBehindTheHitsIsNotNeeded) {
    query(u"verse 40:2"_s);
    open();
    press(window().CmdIndex(0));
    ASSERT_EQ(position(), u"EOF"_s);
    desktop.expectMessage(allOnThePage);
    open();
    EXPECT_FALSE(isLoaded<frmIndex>());
    EXPECT_EQ(position(), u"EOF"_s);
    EXPECT_EQ(InQuery, On);
    main().cmdMain(6).setValue(true);
    EXPECT_TRUE(main().Caption().contains(u"[Matthew 2:1]"_s));
}

TEST_F(IndexList, behindTheFindBarListsWhatFollowsInTheBible) {
    query(u"verse 19"_s);
    main().txtFind.setText(u"verse 40:1:3."_s);
    main().cmdMain(8).setValue(true);
    ASSERT_EQ(InQuery, On);
    open();
    EXPECT_EQ(window().lstIndex.List(0), u"Matthew 1:3 Verse 40:1:3."_s);
    EXPECT_EQ(window().lstIndex.List(1), u"Matthew 1:4 Verse 40:1:4."_s);
}

TEST_F(IndexList, isNotNeededForFewHits) {
    VersesPerPage = 40;
    query(u"verse 40:2"_s);
    desktop.expectMessage(allOnThePage);
    open();
    EXPECT_FALSE(isLoaded<frmIndex>());
    EXPECT_FALSE(isLoaded<frmWorking>());
}

TEST_F(IndexList, isNotNeededForFewerLinesThanAPage) {
    VersesPerPage = 40;
    NumIndexItems = 0;
    query(u"verse 19"_s);
    desktop.expectMessage(fewerThanAPage);
    open();
    EXPECT_FALSE(isLoaded<frmIndex>());
    VersesPerPage = 25; // just as many as the count
    rsBible.MoveFirst();
    open();
    EXPECT_TRUE(isLoaded<frmIndex>());
}

TEST_F(IndexList, isNeededForAsManyHitsAsAPageBelowTheCount) {
    query(u"verse 40:2"_s); // 23 hits, and a count of 24
    VersesPerPage = 24;
    open();
    EXPECT_EQ(window().lstIndex.ListCount(), 23);
    press(window().CmdIndex(0));
    rsBible.MoveFirst();
    VersesPerPage = 25;
    desktop.expectMessage(allOnThePage);
    open();
    EXPECT_FALSE(isLoaded<frmIndex>());
}

TEST_F(IndexList, showsTextsWithoutTheirRedLetters) {
    const QString red = QChar(30) + u"003 004one love two"_s;
    rsBible.Seek(u"="_s, 40, 1, 1);
    rsBible.Edit();
    rsBible.Fields(4) = red;
    rsBible.Update();
    query(u"love"_s);
    VersesPerPage = 1;
    open();
    EXPECT_EQ(window().lstIndex.List(0), u"Matthew 1:1 one love two"_s);
}

TEST_F(IndexList, tellsOfItsProgress) {
    startOn({3, 15611, 15612, 31221});
    query(u"verse 1"_s);
    auto& working = form<frmWorking>();
    ProgressWatch watch(working);
    VersesPerPage = 2;
    open();
    EXPECT_EQ(
        watch.texts,
        (QStringList{
            u"Now building index"_s, u"Adding: Genesis 1:1"_s, u"Adding: Genesis 1:2"_s,
            u"Adding: Genesis 1:3"_s, u"Adding: Genesis 1:4"_s}));
    EXPECT_EQ(watch.values, (QList<int>{0, 50, 99}));
    EXPECT_FALSE(isLoaded<frmWorking>());
}

TEST_F(IndexList, itsGaugeGoesNoFurtherThanFull) {
    startOn({15611, 32000, 32767});
    query(u"verse 1"_s);
    ProgressWatch watch(form<frmWorking>());
    VersesPerPage = 2;
    open();
    EXPECT_EQ(watch.values, (QList<int>{50, 100}));
    EXPECT_EQ(window().lstIndex.ListCount(), 3);
}

TEST_F(IndexList, endsBeforeANumberThatIsTooLarge) {
    startOn({1, 2, 3, 32767, 32768, 32769});
    query(u"verse 1"_s);
    VersesPerPage = 5;
    open();
    EXPECT_EQ(window().lstIndex.ListCount(), 4);
    EXPECT_EQ(window().IndexID[4], 32767);
    EXPECT_EQ(position(), u"1:1:5"_s);
    EXPECT_FALSE(isLoaded<frmWorking>());
    EXPECT_EQ(main().cursor().shape(), Qt::ArrowCursor);
    window().Unload();
    rsBible.MoveFirst();
    VersesPerPage = 6;
    desktop.expectMessage(allOnThePage);
    open();
    EXPECT_FALSE(isLoaded<frmIndex>());
}

TEST_F(IndexList, waitsWhileItIsBuilt) {
    query(u"verse 40"_s);
    WindowWatch watch(main());
    open();
    QStringList signs = watch.takeSigns();
    signs.removeIf([](const QString& sign) { return sign != u"wait" && sign != u"normal"; });
    EXPECT_EQ(signs, (QStringList{u"wait"_s, u"normal"_s}));
}
