#include "plugins/jet/JetTest.h"

#include "store/StoreTuning.h"
#include "store/Workspace.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <ostream>

void PrintTo(const QString& text, std::ostream* stream) {
    *stream << '"' << text.left(200).toStdString() << '"';
}

void PrintTo(const QVariant& value, std::ostream* stream) {
    if (value.isNull())
        *stream << "Null";
    else
        *stream << value.typeName() << " " << value.toString().left(200).toStdString();
}

void PrintTo(const QList<QVariantList>& rows, std::ostream* stream) {
    for (const QVariantList& row : rows) {
        *stream << "\n  ";
        for (const QVariant& value : row) {
            PrintTo(value, stream);
            *stream << " | ";
        }
    }
}

namespace {

// In memory where there is such a folder: thousands of files are made, and each is flushed.
QString folderTemplate() {
    const QString memory = u"/dev/shm"_s;
    const QString parent = QFileInfo(memory).isWritable() ? memory : QDir::tempPath();
    return parent + u"/lumenvia-jet-XXXXXX"_s;
}

} // namespace

JetTest::JetTest()
    : m_folder(folderTemplate()) {
    storeTuning() = {.busyTimeout = std::chrono::milliseconds(20), .flushToDisk = false};
}

JetConversionOptions JetTest::options() const {
    return {path(u"cache"_s), 0};
}

void JetTest::write(const QByteArray& bytes, const QString& name) const {
    QFile file(path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
}

QByteArray JetTest::read(const QString& name) const {
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList JetTest::leftovers() const {
    QStringList names =
        QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    names.removeOne(u"kjv.mdb"_s);
    return names;
}

QList<QVariantList> JetTest::converted(JetFixture fixture, const QString& table) const {
    write(fixture.bytes());
    return rowsOf(convertJetFile(path(), options()), table);
}

QString JetTest::refusal(const QByteArray& bytes) const {
    write(bytes);
    const QString text = errorTextOf([&] { convertJetFile(path(), options()); });
    EXPECT_NE(text, QString());
    EXPECT_EQ(read(), bytes);
    EXPECT_EQ(leftovers(), QStringList());
    return text;
}

namespace {

Recordset openTable(const QString& path, const QString& table) {
    return DBEngine::CreateWorkspace(u"Test"_s, u"Admin"_s, {})
        .OpenDatabase(path)
        .OpenRecordset(table);
}

} // namespace

QList<QVariantList> rowsOf(const QString& path, const QString& table) {
    QList<QVariantList> rows;
    for (Recordset cursor = openTable(path, table); !cursor.Eof(); cursor.MoveNext()) {
        QVariantList row;
        for (int field = 0; attempt([&] { row.append(cursor.Fields(field).Value()); });)
            ++field;
        rows.append(row);
    }
    return rows;
}

QStringList fieldsOf(const QString& path, const QString& table) {
    QStringList names;
    Recordset cursor = openTable(path, table);
    for (int field = 0; attempt([&] { names.append(cursor.Fields(field).Name()); });)
        ++field;
    return names;
}

qlonglong numberOfNewRow(const QString& path, const QString& table) {
    Recordset cursor = openTable(path, table);
    cursor.AddNew();
    cursor.Fields(1) = u"new"_s;
    cursor.Update();
    cursor.MoveLast();
    return cursor.Fields(0).Value().toLongLong();
}

JetFixture withField(
    JetVersion version, const JetFieldOutline& field, const QVariantList& values, quint32 key) {
    JetTableOutline table{u"Table1"_s, {field}, {}};
    for (const QVariant& value : values)
        table.rows.append({{value}});
    JetFixture fixture(version, key);
    fixture.add(table);
    return fixture;
}

JetTableOutline verseTable() {
    const QString red = QChar(30) + u"002 005In the beginning"_s;
    return {
        u"tblMain"_s,
        {{u"ID"_s, JetType::Long, 0, true},
         {u"book"_s, JetType::Integer},
         {u"chapter"_s, JetType::Integer},
         {u"verse"_s, JetType::Integer},
         {u"body"_s, JetType::Memo},
         {u"note"_s, JetType::Memo}},
        {{{1, 1, 1, 1, u"In the beginning God created"_s, {}}},
         {{2, 1, 1, 2, u"And the earth was without form"_s,
           u"a note\r\nof two lines, \xe4\xf6\xfc"_s}},
         {{3, 40, 5, 3, red, u"n"_s.repeated(9000)}, JetRowOutline::Moved},
         {{4, 66, 22, 21, u"Amen."_s, u" "_s}}},
        4};
}

QByteArray verseFile(JetVersion version) {
    JetFixture fixture(version);
    fixture.add(verseTable());
    return fixture.bytes();
}
