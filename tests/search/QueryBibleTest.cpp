// Query, index and note search on the real King James Bible, against a plain search of the same
// verses.
#include "core/BookNames.h"
#include "core/GlobalCode.h"
#include "reader/frmMain.h"
#include "search/frmIndex.h"
#include "search/frmNoteSearch.h"
#include "search/frmQuery.h"
#include "support/ProgramFixture.h"

#include <QFile>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct BibleVerse {
    int id;
    int book;
    int chapter;
    int verse;
    QString body;

    QString reference() const {
        return u"%1 %2:%3"_s.arg(BookNames[static_cast<size_t>(book) - 1]).arg(chapter).arg(verse);
    }
};

struct Choice {
    QString first;
    QString second;
    bool both = false;
    bool whole = false;
    int scope = 0;
    int book = 0;
};

bool holds(const QString& body, const QString& word, bool whole) {
    if (!whole)
        return body.contains(word, Qt::CaseInsensitive);
    const QString marks = u" .,:;"_s;
    return std::ranges::any_of(
        marks, [&](QChar mark) { return body.contains(u' ' + word + mark, Qt::CaseInsensitive); });
}

bool isMet(const Choice& choice, const BibleVerse& verse) {
    if ((choice.scope == 1 && verse.book > 39) || (choice.scope == 2 && verse.book < 40))
        return false;
    if (choice.book > 0 && verse.book != choice.book + (choice.scope == 1 ? 39 : 0))
        return false;
    const bool first = holds(verse.body, choice.first, choice.whole);
    if (choice.second.isEmpty())
        return first;
    const bool second = holds(verse.body, choice.second, choice.whole);
    return choice.both ? first && second : first || second;
}

class QueryBible : public ProgramFixture {
protected:
    void SetUp() override {
        const QString bibles = qEnvironmentVariable("LUMENVIA_BIBLES");
        ASSERT_TRUE(QFile::copy(bibles + u"/KJV.mdb"_s, programFile(u"KJV.mdb"_s)));
        startProgram();
        readVerses();
    }

    // Once, by a cursor of its own.
    void readVerses() {
        if (!s_verses.isEmpty())
            return;
        Recordset verses = dbBible.OpenRecordset(u"tblMain"_s, dbOpenTable);
        verses.Index(u"VerseIndex"_s);
        for (; !verses.Eof(); verses.MoveNext())
            s_verses.append(
                {verses.Fields(0).Value().toInt(), verses.Fields(1).Value().toInt(),
                 verses.Fields(2).Value().toInt(), verses.Fields(3).Value().toInt(),
                 verses.Fields(4).Value().toString()});
    }

    static QList<int> expectedHits(const Choice& choice) {
        QList<int> ids;
        for (const BibleVerse& verse : s_verses) {
            if (isMet(choice, verse))
                ids.append(verse.id);
        }
        return ids;
    }

    static QList<int> hits() {
        QList<int> ids;
        for (rsBible.MoveFirst(); !rsBible.Eof(); rsBible.MoveNext())
            ids.append(rsBible.Fields(0).Value().toInt());
        return ids;
    }

    static void fill(const Choice& choice) {
        frmQuery& window = form<frmQuery>();
        window.txtQuery(0).setText(choice.first);
        window.txtQuery(1).setText(choice.second);
        window.optAndOr(choice.both ? 0 : 1).setValue(true);
        window.chkMatchCase.setValue(choice.whole);
        window.cboScope.setListIndex(choice.scope);
        window.cboBook.setListIndex(choice.book);
    }

    // Runs a query as a user does; without a hit the window is cancelled and the query ended.
    void query(const Choice& choice, bool hasHits = true) {
        desktop.expectWindow([&](QWidget&) {
            fill(choice);
            if (!hasHits)
                desktop.expectMessage(
                    {u"There were no verses with the attributes you chose."_s,
                     u"Verses Not Found"_s, MessageIcon::Information});
            form<frmQuery>().cmdQuery(0).setValue(true);
            if (!hasHits)
                form<frmQuery>().cmdQuery(3).setValue(true);
        });
        form<frmMain>().cmdMain(5).setValue(true);
    }

    void checkQuery(const Choice& choice) {
        const QList<int> expected = expectedHits(choice);
        query(choice, !expected.isEmpty());
        if (!expected.isEmpty()) {
            ASSERT_EQ(hits(), expected)
                << QuerySQL.toStdString() << " should have " << expected.size();
        }
        form<frmMain>().cmdMain(6).setValue(true);
    }

    static inline QList<BibleVerse> s_verses;
};

} // namespace

TEST_F(QueryBible, findsWhatAPlainSearchFindsForEveryChoice) {
    for (const auto& [first, second] :
         {std::pair(u"grace"_s, QString()), std::pair(u"love"_s, u"hate"_s)}) {
        for (int boxes = 0; boxes < 4; ++boxes) {
            for (int scope = 0; scope < 3; ++scope) {
                for (const int book : {0, 5})
                    checkQuery({first, second, (boxes & 1) != 0, (boxes & 2) != 0, scope, book});
            }
        }
    }
}

TEST_F(QueryBible, findsWhatAPlainSearchFindsForCommonWords) {
    for (const bool both : {true, false}) {
        for (const bool whole : {true, false})
            checkQuery({u"of the"_s, u"LORD"_s, both, whole});
    }
}

TEST_F(QueryBible, findsTheNumbersOfVersesThatAreKnown) {
    struct Known {
        QString word;
        int whole;
        int anywhere;
    };
    for (const Known& known :
         {Known{u"grace"_s, 146, 160}, Known{u"love"_s, 277, 547},
          Known{u"Jerusalem"_s, 751, 767}}) {
        for (const bool whole : {true, false}) {
            query({known.word, {}, false, whole});
            EXPECT_EQ(hits().size(), whole ? known.whole : known.anywhere)
                << known.word.toStdString();
        }
    }
}

TEST_F(QueryBible, theIndexListsTheHitsBelowTheOneOnTop) {
    const Choice choice{u"grace"_s, {}};
    query(choice);
    form<frmMain>().cmdMain(10).setValue(true);
    QStringList expected;
    for (const BibleVerse& verse : s_verses) {
        const bool red = verse.body.startsWith(QChar(30));
        if (isMet(choice, verse))
            expected.append(verse.reference() + u' ' + (red ? verse.body.mid(8) : verse.body));
    }
    const frmIndex& window = form<frmIndex>();
    ASSERT_EQ(window.lstIndex.ListCount(), 49);
    for (int line = 0; line < 49; ++line)
        EXPECT_EQ(window.lstIndex.List(line), expected[line + 1]);
}

TEST_F(QueryBible, theNoteSearchWalksTheNotesInTheOrderOfTheBible) {
    const QList<BibleVerse> noted = {s_verses[3], s_verses[15000], s_verses[31000]};
    for (const BibleVerse& verse : noted) {
        rsBible.Seek(u"="_s, verse.book, verse.chapter, verse.verse);
        rsBible.Edit();
        rsBible.Fields(5) = u"Remember: "_s + verse.reference();
        rsBible.Update();
    }
    desktop.expectWindow([&](QWidget&) {
        frmNoteSearch& window = form<frmNoteSearch>();
        window.txtNoteSearch.setText(u"remember"_s);
        int button = 0;
        for (const BibleVerse& verse : noted) {
            window.cmdNoteSearch(button).setValue(true);
            button = 2;
            EXPECT_EQ(form<frmMain>().txtNote.Text(), u"Remember: "_s + verse.reference());
        }
        window.cmdNoteSearch(1).setValue(true);
    });
    form<frmMain>().cmdMain(3).setValue(true);
    EXPECT_TRUE(form<frmMain>().Caption().contains(noted.constLast().reference()));
}
