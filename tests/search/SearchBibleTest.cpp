// The searches on the real King James Bible, against a plain search of the same verses.
#include "controls/Forms.h"
#include "core/GlobalCode.h"
#include "core/NewSetup.h"
#include "reader/frmMain.h"
#include "search/frmHolyTextFind.h"
#include "search/frmSimpleFind.h"
#include "support/ProgramFixture.h"

#include <QFile>
#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

using Places = QStringList;

class SearchBible : public ProgramFixture {
protected:
    void SetUp() override {
        const QString bibles = qEnvironmentVariable("LUMENVIA_BIBLES");
        ASSERT_TRUE(QFile::copy(bibles + u"/KJV.mdb"_s, programFile(u"KJV.mdb"_s)));
        startProgram();
    }

    static frmMain& window() { return form<frmMain>(); }

    // The verses whose stored text meets a test, in the order of the Bible.
    static Places versesThat(const std::function<bool(const QString&)>& isMet) {
        Places places;
        Recordset verses = dbBible.OpenRecordset(u"tblMain"_s, dbOpenTable);
        verses.Index(u"VerseIndex"_s);
        for (; !verses.Eof(); verses.MoveNext()) {
            if (isMet(verses.Fields(4).Value().toString()))
                places.append(u"%1:%2:%3"_s.arg(verses.Fields(1).Value().toInt())
                                  .arg(verses.Fields(2).Value().toInt())
                                  .arg(verses.Fields(3).Value().toInt()));
        }
        return places;
    }

    static bool holds(const QString& text, const QString& part) {
        return text.contains(part, Qt::CaseInsensitive);
    }

    static bool holdsWord(const QString& text, const QString& word, const QString& marks) {
        return std::ranges::any_of(
            marks, [&](QChar mark) { return holds(text, u' ' + word + mark); });
    }

    static Places versesWith(const QString& word) {
        return versesThat([&](const QString& text) { return holds(text, word); });
    }

    static Places versesWithWord(const QString& word) {
        return versesThat([&](const QString& text) { return holdsWord(text, word, u" .:;,"_s); });
    }

    // Presses until a miss, which leaves the cursor where it is; its box is in the script.
    static Places walk(const std::function<void()>& press) {
        Places places;
        for (press(); places.isEmpty() || position() != places.constLast(); press())
            places.append(position());
        return places;
    }

    // Every hit of the simple search in a scope.
    Places simpleHits(const QString& word, bool whole, int testament = 0, int book = 0) {
        Places places;
        desktop.expectWindow([&](QWidget& opened) {
            auto& find = static_cast<frmSimpleFind&>(opened);
            find.txtFind.setText(word);
            find.chkMatchWholeWord.setValue(whole);
            find.cboTestament.setListIndex(testament);
            find.cboBook.setListIndex(book);
            desktop.expectMessage(
                {u"After the current verse no verses were found.\r\n\r\n"
                 u"Would you like to search from the beginning of the Bible (Genesis)?"_s,
                 u"Not Found"_s, MessageIcon::Question, MessageButtons::YesNo},
                Answer::No);
            places = walk([&] { find.cmdFind(1).setValue(true); });
            find.cmdFind(3).setValue(true);
        });
        window().mnuSearch(3).trigger();
        return places;
    }

    // Every hit of the advanced search for two words.
    Places advancedHits(
        const QString& first, const QString& second, bool both, bool whole, int testament = 0,
        int book = 0) {
        Places places;
        desktop.expectWindow([&](QWidget& opened) {
            auto& find = static_cast<frmHolyTextFind&>(opened);
            find.txtFind(0).setText(first);
            find.txtFind(1).setText(second);
            find.optAndOr(both ? 0 : 1).setValue(true);
            find.chkMatchWholeWord.setValue(whole);
            find.cboTestament.setListIndex(testament);
            find.cboBook.setListIndex(book);
            desktop.expectMessage(
                {u"No verses found from this point FORWARD.\r\n\r\n"
                 u"Would you like to search from the beginning of the Bible?"_s,
                 u"Not Found"_s, MessageIcon::Question, MessageButtons::YesNo},
                Answer::No);
            places = walk([&] { find.cmdHolyTextFind(3).setValue(true); });
            find.cmdHolyTextFind(1).setValue(true);
        });
        window().cmdMain(4).setValue(true);
        return places;
    }
};

struct Count {
    QString word;
    int plain;
    int whole;
};

const Count counts[] = {{u"grace"_s, 160, 146}, {u"love"_s, 547, 277}, {u"Jerusalem"_s, 767, 751}};

} // namespace

TEST_F(SearchBible, theSimpleSearchFindsEveryVerseThatHoldsTheText) {
    for (const auto& [word, plain, whole] : counts) {
        const Places hits = simpleHits(word, false);
        EXPECT_EQ(hits.size(), plain) << word.toStdString();
        EXPECT_EQ(hits, versesWith(word));
    }
}

TEST_F(SearchBible, theSimpleSearchFindsExactlyTheWholeWords) {
    for (const auto& [word, plain, whole] : counts) {
        const Places hits = simpleHits(word, true);
        EXPECT_EQ(hits.size(), whole) << word.toStdString();
        EXPECT_EQ(hits, versesWithWord(word));
    }
}

TEST_F(SearchBible, aScopeLimitsTheSimpleSearch) {
    const auto bookOf = [](const QString& place) { return place.section(u':', 0, 0).toInt(); };
    const Places all = versesWith(u"grace"_s);
    Places oldOnes, newOnes, psalms;
    std::ranges::copy_if(
        all, std::back_inserter(oldOnes), [&](const QString& place) { return bookOf(place) < 40; });
    std::ranges::copy_if(
        all, std::back_inserter(newOnes), [&](const QString& place) { return bookOf(place) > 39; });
    std::ranges::copy_if(
        all, std::back_inserter(psalms), [&](const QString& place) { return bookOf(place) == 19; });
    EXPECT_EQ(simpleHits(u"grace"_s, false, 1), oldOnes);
    EXPECT_EQ(simpleHits(u"grace"_s, false, 2), newOnes);
    EXPECT_EQ(simpleHits(u"grace"_s, false, 0, 19), psalms);
    EXPECT_EQ(psalms.size(), 2);
}

TEST_F(SearchBible, theAdvancedSearchBindsAndToTheLastAlternative) {
    const Places hits = advancedHits(u"love"_s, u"hate"_s, true, true);
    EXPECT_EQ(hits.size(), 241);
    EXPECT_EQ(hits, versesThat([](const QString& text) {
                  return holdsWord(text, u"love"_s, u" .:;"_s)
                         || (holdsWord(text, u"love"_s, u","_s)
                             && holdsWord(text, u"hate"_s, u" .:;,"_s));
              }));
}

TEST_F(SearchBible, theAdvancedSearchFindsBothPlainWords) {
    EXPECT_EQ(
        advancedHits(u"grace"_s, u"peace"_s, true, false), versesThat([](const QString& text) {
            return holds(text, u"grace"_s) && holds(text, u"peace"_s);
        }));
}

TEST_F(SearchBible, theAdvancedSearchFindsEitherWordInEveryScope) {
    for (const bool whole : {false, true}) {
        const Places all = versesThat([whole](const QString& text) {
            const auto isThere = [&](const QString& word) {
                return whole ? holdsWord(text, word, u" .:;,"_s) : holds(text, word);
            };
            return isThere(u"lamp"_s) || isThere(u"olive"_s);
        });
        const auto inBooks = [&](int first, int last) {
            Places places = all;
            places.removeIf([&](const QString& place) {
                const int book = place.section(u':', 0, 0).toInt();
                return book < first || book > last;
            });
            return places;
        };
        EXPECT_GT(all.size(), 20);
        EXPECT_EQ(advancedHits(u"lamp"_s, u"olive"_s, false, whole), all);
        EXPECT_EQ(advancedHits(u"lamp"_s, u"olive"_s, false, whole, 1), inBooks(1, 39));
        EXPECT_EQ(advancedHits(u"lamp"_s, u"olive"_s, false, whole, 2), inBooks(40, 66));
        EXPECT_EQ(advancedHits(u"lamp"_s, u"olive"_s, false, whole, 0, 2), inBooks(2, 2));
    }
}

TEST_F(SearchBible, theFindBarWalksTheSameVersesInBothDirections) {
    const Places expected = versesWith(u"grace"_s);
    rsBible.MoveFirst();
    window().txtFind.setText(u"grace"_s);
    for (const QString& place : expected) {
        window().cmdMain(8).setValue(true);
        ASSERT_EQ(position(), place);
    }
    desktop.expectMessage(
        {u"After the current verse no other contained the text: \ngrace"_s, u"Not Found"_s,
         MessageIcon::Information});
    window().cmdMain(8).setValue(true);
    for (qsizetype hit = expected.size() - 2; hit >= 0; --hit) {
        window().cmdMain(7).setValue(true);
        ASSERT_EQ(position(), expected[hit]);
    }
}

TEST_F(SearchBible, theFindBarShowsTheHitAtTheTopOfItsPage) {
    rsBible.MoveFirst();
    window().txtFind.setText(u"gone astray like a lost sheep"_s);
    window().cmdMain(8).setValue(true);
    EXPECT_TRUE(window().txtMain.Text().startsWith(u"Psalms 119:176 I have gone astray"_s));
    EXPECT_EQ(window().Caption(), u"Lumenvia Professional King James [Psalms 119:176] "_s);
}
