// Files cut off and changed at random: an error or values, but never a crash, and an end to every
// walk.
#include "StoreFixture.h"

#include <QFile>
#include <QtEndian>
#include <algorithm>
#include <random>

namespace {

constexpr qsizetype PageSize = 16384;

class Damage : public StoreFixture {
protected:
    Damage() {
        std::vector<Verse> verses;
        for (int row = 0; row < 900; ++row)
            verses.push_back(
                {row / 300 + 1, row % 300 / 20 + 1, row % 20 + 1,
                 u"In the beginning was the Word %1 "_s.arg(row).repeated(row % 50 == 0 ? 300 : 3),
                 row % 3 ? QVariant() : QVariant(u"a note"_s)});
        makeTranslation(verses, u"good.mdb"_s);
        QFile file(path(u"good.mdb"_s));
        if (file.open(QIODevice::ReadOnly))
            content = file.readAll();
    }

    void write(const QByteArray& damaged) {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(damaged);
    }

    // Reads all fields on a walk; how many rows it met before its end or an error.
    static int walkThrough(Recordset& cursor, void (Recordset::*step)()) {
        int rows = 0;
        while (!cursor.Eof() && !cursor.Bof()) {
            for (int field = 0; field < 6; ++field)
                attempt([&] { cursor.Fields(field).Value(); });
            if (!attempt([&] { (cursor.*step)(); }))
                break;
            ++rows;
        }
        return rows;
    }

    // Everything that the program does with a file.
    void useFile() {
        attempt([&] {
            Recordset cursor = openByVerse();
            EXPECT_LE(walkThrough(cursor, &Recordset::MoveNext), content.size());
            attempt([&] { cursor.MoveLast(); });
            EXPECT_LE(walkThrough(cursor, &Recordset::MovePrevious), content.size());
            attempt([&] { cursor.Seek(u"="_s, 2, 1, 1); });
            attempt([&] { cursor.RecordCount(); });
        });
        attempt([&] {
            Recordset cursor = openDynaset();
            for (const QString& criteria :
                 {u"body like '*nothing*'"_s, u"ID = 200"_s,
                  u"book = 3 and note like '*note*'"_s}) {
                attempt([&] { cursor.FindFirst(criteria); });
                attempt([&] { cursor.FindPrevious(criteria); });
            }
            cursor.MoveLast();
            cursor.Edit();
            cursor.Fields(5) = u"written"_s;
            cursor.Update();
            cursor.Delete();
        });
        attempt([&] {
            Recordset cursor = openDynaset(u"SELECT * FROM tblMain WHERE body like \"*word 1*\""_s);
            EXPECT_LE(walkThrough(cursor, &Recordset::MoveNext), content.size());
        });
    }

    QByteArray content;
};

TEST_F(Damage, aFileCutOffAnywhereGivesAnErrorOnly) {
    std::mt19937 random(1);
    for (int round = 0; round < 300; ++round) {
        const auto size = static_cast<qsizetype>(random() % static_cast<unsigned>(content.size()));
        write(content.left(size));
        EXPECT_EQ(errorOf([&] { openDatabase(); }), Error::NotADatabase) << size;
        useFile();
    }
}

TEST_F(Damage, changedBytesGiveErrorsOrValues) {
    std::mt19937 random(2);
    for (int round = 0; round < 300; ++round) {
        QByteArray damaged = content;
        for (int count = 1 << random() % 8; count > 0; --count)
            damaged[static_cast<qsizetype>(random() % static_cast<unsigned>(damaged.size()))] =
                static_cast<char>(random());
        write(damaged);
        useFile();
    }
}

// The heads of the pages steer every walk: here a change does the most harm.
TEST_F(Damage, changedPageHeadsGiveErrorsOrValues) {
    std::mt19937 random(3);
    for (int round = 0; round < 300; ++round) {
        QByteArray damaged = content;
        for (int count = 1 << random() % 5; count > 0; --count) {
            const auto pages = static_cast<unsigned>(damaged.size() / PageSize);
            const auto place = (random() % pages) * PageSize + random() % 64;
            damaged[static_cast<qsizetype>(place)] = static_cast<char>(random() % 16);
        }
        write(damaged);
        useFile();
    }
}

TEST_F(Damage, exchangedPagesGiveErrorsOrValues) {
    std::mt19937 random(4);
    for (int round = 0; round < 300; ++round) {
        QByteArray damaged = content;
        const auto pages = static_cast<unsigned>(damaged.size() / PageSize);
        for (int count = 1 + static_cast<int>(random() % 4); count > 0; --count) {
            const auto from = static_cast<qsizetype>(1 + random() % (pages - 1)) * PageSize;
            const auto to = static_cast<qsizetype>(1 + random() % (pages - 1)) * PageSize;
            std::copy_n(content.begin() + from, PageSize, damaged.begin() + to);
        }
        write(damaged);
        useFile();
    }
}

// The inner page of a table's tree, with all its ways leading to one page.
QByteArray withAllWaysTo(QByteArray inner, char page) {
    const auto pointAt = [&](qsizetype place) {
        inner.replace(place, 4, QByteArray(3, '\0') + page);
    };
    const int cells = qFromBigEndian<quint16>(inner.constData() + 3);
    pointAt(8);
    for (int cell = 0; cell < cells; ++cell)
        pointAt(qFromBigEndian<quint16>(inner.constData() + 12 + 2 * cell));
    return inner;
}

// Forty ways lead from each of twelve levels to the next one: more than any walk could take.
TEST_F(Damage, aTreeThatLeadsBackIntoItselfComesToAnEnd) {
    makeFile({"CREATE TABLE tblMain (body TEXT)"}, u"tree.mdb"_s);
    Recordset filler = openDynaset(u"tblMain"_s, u"tree.mdb"_s);
    for (int row = 0; row < 40; ++row) {
        filler.AddNew();
        filler.Fields(0) = u"x"_s.repeated(12000);
        filler.Update();
    }
    filler.Close();
    QFile file(path(u"tree.mdb"_s));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QByteArray tree = file.readAll();
    const QByteArray root = tree.mid(PageSize, PageSize);
    ASSERT_EQ(root[0], 5) << "the table's root is an inner page";
    ASSERT_EQ(tree[2 * PageSize], 13) << "page 3 is a leaf";
    tree.replace(PageSize, PageSize, withAllWaysTo(root, 4));
    for (char page = 4; page < 16; ++page)
        tree.replace(
            (page - 1) * PageSize, PageSize,
            withAllWaysTo(root, page < 15 ? static_cast<char>(page + 1) : char(3)));
    write(tree);
    Recordset cursor = openDynaset();
    const auto failsAsDamaged = [](const std::function<void()>& operation) {
        return errorTextOf(operation).contains(u"damaged"_s);
    };
    EXPECT_TRUE(failsAsDamaged([&] { cursor.FindFirst(u"body = 'y'"_s); }));
    EXPECT_TRUE(failsAsDamaged([&] { openDynaset(u"SELECT * FROM tblMain"_s); }));
    EXPECT_TRUE(failsAsDamaged([&] { openDynaset(u"SELECT * FROM tblMain WHERE body = 'y'"_s); }));
    EXPECT_TRUE(failsAsDamaged([&] {
        for (; !cursor.Eof(); cursor.MoveNext())
            cursor.RecordCount();
    }));
}

} // namespace
