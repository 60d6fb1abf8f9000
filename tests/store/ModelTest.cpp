// Random steps of two cursors on two connections, each held against a plain model after each step.
#include "ModelTable.h"

#include <random>

namespace {

// A table with one kind of key, and how the cursors walk it.
struct Shape {
    std::string name;
    std::vector<const char*> schema;
    std::vector<int> keyColumns; // of the index "i"; without any, the cursors are dynasets
    bool textKeys = false;
    bool isSelect = false;
};

void PrintTo(const Shape& shape, std::ostream* stream) {
    *stream << shape.name;
}

// Columns: 0 and 1 may be keys, 2 is a text that is no key.
constexpr int Columns = 3;
constexpr int TextColumn = 2;

class Model : public StoreFixture, public testing::WithParamInterface<Shape> {
protected:
    struct Pair {
        Recordset cursor;
        std::unique_ptr<ModelCursor> model;
    };

    Model() {
        makeFile(GetParam().schema);
        Recordset filler = openDynaset(u"t"_s);
        for (int row = 0; row < 30; ++row)
            addRow(filler, randomRow());
        openBoth();
    }

    bool isTable() const { return !GetParam().keyColumns.empty(); }
    int below(int end) { return static_cast<int>(m_random() % static_cast<unsigned>(end)); }

    QVariant randomKey() {
        const int kind = below(6);
        if (kind == 0)
            return {};
        if (GetParam().textKeys)
            return QString(below(3), u"aéz"_s[below(3)]);
        return static_cast<qlonglong>(below(5) - 1);
    }

    QVariant randomText() {
        static const QStringList words = {u"light"_s, u"LIGHT and bread"_s, u"bread"_s, u""_s};
        return below(5) == 0 ? QVariant() : QVariant(words[below(4)]);
    }

    QVariant randomValue(int column) { return column == TextColumn ? randomText() : randomKey(); }
    ModelRow randomRow() { return {randomKey(), randomKey(), randomText()}; }

    void addRow(Recordset& cursor, const ModelRow& row) {
        cursor.AddNew();
        for (int column = 0; column < Columns; ++column)
            cursor.Fields(column + m_firstColumn) = row[column];
        cursor.Update();
        if (!m_pairs.empty())
            return;
        m_table.add(row);
    }

    static bool hasLight(const ModelRow& row) {
        return row[TextColumn].toString().contains(u"light"_s, Qt::CaseInsensitive);
    }

    void open(Pair& pair) {
        const Shape& shape = GetParam();
        const QString source =
            shape.isSelect ? u"SELECT * FROM t WHERE x like \"*Light*\""_s : u"t"_s;
        pair.cursor = openDatabase().OpenRecordset(source, isTable() ? dbOpenTable : dbOpenDynaset);
        if (isTable())
            pair.cursor.Index(u"i"_s);
        pair.model = std::make_unique<ModelCursor>(
            m_table, shape.keyColumns, shape.isSelect ? hasLight : ModelCursor::Test());
    }

    void openBoth() {
        m_pairs.resize(2);
        for (Pair& pair : m_pairs)
            open(pair);
    }

    void move(Pair& pair) {
        const bool isForward = below(2) == 0;
        if (below(8) == 0) {
            EXPECT_EQ(
                errorOf([&] { isForward ? pair.cursor.MoveFirst() : pair.cursor.MoveLast(); }),
                pair.model->moveToEnd(isForward));
            return;
        }
        for (int steps = below(10) == 0 ? 40 : 1 + below(4); steps > 0; --steps)
            ASSERT_EQ(
                errorOf([&] { isForward ? pair.cursor.MoveNext() : pair.cursor.MovePrevious(); }),
                pair.model->step(isForward));
    }

    void write(Pair& pair) {
        const int column = below(Columns);
        const QVariant value = randomValue(column);
        const bool isDropped = below(10) == 0;
        const auto operation = [&] {
            pair.cursor.Edit();
            pair.cursor.Fields(column + m_firstColumn) = value;
            if (!isDropped)
                pair.cursor.Update();
        };
        ModelRow row;
        EXPECT_EQ(
            errorOf(operation),
            isDropped ? pair.model->read(row) : pair.model->write(column, value));
        if (isDropped)
            move(pair);
    }

    void addOrDelete(Pair& pair) {
        const bool isAdding = static_cast<int>(m_table.rows.size()) < 5 + below(50);
        if (!isAdding) {
            EXPECT_EQ(errorOf([&] { pair.cursor.Delete(); }), pair.model->remove());
            return;
        }
        const ModelRow row = randomRow();
        addRow(pair.cursor, row);
        pair.model->add(row);
    }

    void search(Pair& pair) { isTable() ? seek(pair) : find(pair); }

    void seek(Pair& pair) {
        if (below(2) == 0) {
            const QVariant key = randomKey();
            pair.cursor.Seek(u"="_s, key);
            pair.model->seek({key});
        } else {
            const QVariantList key = {randomKey(), randomKey()};
            pair.cursor.Seek(u"="_s, key[0], key[1]);
            pair.model->seek(key);
        }
    }

    struct Criteria {
        QString text;
        ModelCursor::Test test;
    };

    Criteria randomCriteria() {
        const int number = below(5) - 1;
        const auto isNumber = [](const QVariant& value) {
            bool converted = false;
            value.toString().toDouble(&converted);
            return converted;
        };
        switch (below(3)) {
        case 0:
            return {u"X like '*light*'"_s, hasLight};
        case 1:
            return {u"a = %1"_s.arg(number), [=](const ModelRow& row) {
                        return isNumber(row[0]) && row[0].toDouble() == number;
                    }};
        default:
            return {
                u"(a < %1 or b > %1) and x = \"BREAD\""_s.arg(number), [=](const ModelRow& row) {
                    const bool isBread =
                        row[TextColumn].toString().compare(u"bread", Qt::CaseInsensitive) == 0;
                    return isBread
                           && ((isNumber(row[0]) && row[0].toDouble() < number)
                               || (isNumber(row[1]) && row[1].toDouble() > number));
                }};
        }
    }

    void find(Pair& pair) {
        const Criteria criteria = randomCriteria();
        const int kind = below(3);
        const auto operation = [&] {
            if (kind == 0)
                pair.cursor.FindFirst(criteria.text);
            else if (kind == 1)
                pair.cursor.FindNext(criteria.text);
            else
                pair.cursor.FindPrevious(criteria.text);
        };
        EXPECT_EQ(errorOf(operation), pair.model->find(criteria.test, kind != 2, kind == 0))
            << criteria.text.toStdString();
    }

    void expectEqual(Pair& pair) {
        EXPECT_EQ(pair.cursor.Bof(), pair.model->isBof());
        EXPECT_EQ(pair.cursor.Eof(), pair.model->isEof());
        EXPECT_EQ(pair.cursor.NoMatch(), pair.model->noMatch());
        ModelRow expected;
        ModelRow row;
        const auto read = [&] {
            for (int column = 0; column < Columns; ++column)
                row += pair.cursor.Fields(column + m_firstColumn).Value();
        };
        ASSERT_EQ(errorOf(read), pair.model->read(expected));
        EXPECT_EQ(row, expected);
        if (m_firstColumn == 1 && !row.isEmpty()) {
            EXPECT_EQ(pair.cursor.Fields(0).Value().toLongLong(), pair.model->rowNumber());
        }
        if (below(20) == 0) {
            EXPECT_EQ(pair.cursor.RecordCount(), pair.model->recordCount(isTable()));
        }
    }

    void act(Pair& pair) {
        const int choice = below(100);
        if (choice < 60)
            move(pair);
        else if (choice < 75)
            search(pair);
        else if (choice < 87)
            write(pair);
        else if (choice < 99)
            addOrDelete(pair);
        else
            open(pair);
    }

    std::mt19937 m_random{5};
    ModelTable m_table;
    std::vector<Pair> m_pairs;
    int m_firstColumn = QByteArray(GetParam().schema.front()).contains("PRIMARY KEY") ? 1 : 0;
};

TEST_P(Model, cursorsDoWhatPlainContainersDo) {
    for (int step = 0; step < 10000; ++step) {
        Pair& pair = m_pairs[m_random() % 2];
        act(pair);
        if (below(3) != 0) // not always, so that a cursor also meets several changes at once
            expectEqual(pair);
        ASSERT_FALSE(HasFailure()) << "at step " << step;
    }
}

const Shape shapes[] = {
    {"numberedRowsByTwoKeys",
     {"CREATE TABLE t (id INTEGER PRIMARY KEY, a INTEGER, b INTEGER, x TEXT)",
      "CREATE INDEX i ON t (a, b)"},
     {0, 1}},
    {"plainRowsByTwoKeys",
     {"CREATE TABLE t (a INTEGER, b INTEGER, x TEXT)", "CREATE INDEX i ON t (b, a)"},
     {1, 0}},
    {"rowsByTexts",
     {"CREATE TABLE t (id INTEGER PRIMARY KEY, a TEXT, b TEXT, x TEXT)",
      "CREATE INDEX i ON t (a, b)"},
     {0, 1},
     true},
    {"dynaset", {"CREATE TABLE t (id INTEGER PRIMARY KEY, a INTEGER, b INTEGER, x TEXT)"}, {}},
    {"dynasetOfTexts", {"CREATE TABLE t (a TEXT, b TEXT, x TEXT)"}, {}, true},
    {"select",
     {"CREATE TABLE t (id INTEGER PRIMARY KEY, a INTEGER, b INTEGER, x TEXT)"},
     {},
     false,
     true},
};

INSTANTIATE_TEST_SUITE_P(
    Shapes, Model, testing::ValuesIn(shapes),
    [](const testing::TestParamInfo<Shape>& shape) { return shape.param.name; });

} // namespace
