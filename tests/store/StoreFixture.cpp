#include "StoreFixture.h"

void PrintTo(const QString& text, std::ostream* stream) {
    *stream << '"' << text.toStdString() << '"';
}

StoreFixture::StoreFixture()
    : m_tuningBefore(storeTuning()) {
    storeTuning() = {.busyTimeout = std::chrono::milliseconds(20), .flushToDisk = false};
}

StoreFixture::~StoreFixture() {
    storeTuning() = m_tuningBefore;
}

void StoreFixture::makeTranslation(const std::vector<Verse>& verses, const QString& name) {
    DataFileWriter writer(path(name));
    createTranslationSchema(writer);
    for (const Verse& verse : verses)
        writer.insert(
            u"tblMain"_s,
            {QVariant(), verse.book, verse.chapter, verse.verse, verse.body, verse.note});
    writer.finish();
}

void StoreFixture::makeFile(const std::vector<const char*>& statements, const QString& name) {
    DataFileWriter writer(path(name));
    for (const char* const statement : statements)
        writer.execute(statement);
    writer.finish();
}

Database StoreFixture::openDatabase(const QString& name) {
    return DBEngine::CreateWorkspace(u"Bible"_s, u"Admin"_s, {}).OpenDatabase(path(name));
}

Recordset StoreFixture::openByVerse(const QString& name) {
    Recordset cursor = openDatabase(name).OpenRecordset(u"tblMain"_s, dbOpenTable);
    cursor.Index(u"VerseIndex"_s);
    return cursor;
}

Recordset StoreFixture::openDynaset(const QString& source, const QString& name) {
    return openDatabase(name).OpenRecordset(source, dbOpenDynaset);
}

std::optional<Error::Number> errorOf(const std::function<void()>& operation) {
    try {
        operation();
    } catch (const Error& error) {
        return error.number();
    }
    return std::nullopt;
}

QString errorTextOf(const std::function<void()>& operation) {
    try {
        operation();
    } catch (const Error& error) {
        return error.text();
    }
    return {};
}

qlonglong rowOf(Recordset& cursor) {
    qlonglong number = 0;
    attempt([&] { number = cursor.Fields(0).Value().toLongLong(); });
    return number;
}

std::vector<qlonglong> walk(Recordset cursor) {
    std::vector<qlonglong> rows;
    for (attempt([&] { cursor.MoveFirst(); }); !cursor.Eof(); cursor.MoveNext())
        rows.push_back(rowOf(cursor));
    return rows;
}

std::vector<qlonglong> walkBack(Recordset cursor) {
    std::vector<qlonglong> rows;
    for (attempt([&] { cursor.MoveLast(); }); !cursor.Bof(); cursor.MovePrevious())
        rows.push_back(rowOf(cursor));
    return rows;
}
