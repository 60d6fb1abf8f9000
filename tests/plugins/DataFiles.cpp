#include "plugins/DataFiles.h"

#include "basic/Error.h"

#include <QDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

Database open(const QString& path) {
    return DBEngine::CreateWorkspace(u"Test"_s, u"Admin"_s, {}).OpenDatabase(path);
}

Recordset seekVerse(Database& database, const VerseAddress& address) {
    Recordset verses = database.OpenRecordset(u"tblMain"_s, dbOpenTable);
    verses.Index(u"VerseIndex"_s);
    verses.Seek(u"="_s, address.book, address.chapter, address.verse);
    EXPECT_FALSE(verses.NoMatch()) << qPrintable(verseName(address));
    return verses;
}

} // namespace

QList<QVariantList> rowsOf(const QString& path, const QString& table) {
    QList<QVariantList> rows;
    Database database = open(path);
    for (Recordset cursor = database.OpenRecordset(table); !cursor.Eof(); cursor.MoveNext()) {
        QVariantList row;
        for (int field = 0; attempt([&] { row.append(cursor.Fields(field).Value()); });)
            ++field;
        rows.append(row);
    }
    return rows;
}

QVariant verseField(const QString& path, const VerseAddress& address, const QString& field) {
    Database database = open(path);
    return seekVerse(database, address).Fields(field).Value();
}

void setNote(const QString& path, const VerseAddress& address, const QString& note) {
    Database database = open(path);
    Recordset verses = seekVerse(database, address);
    verses.Edit();
    verses.Fields(u"note"_s) = note;
    verses.Update();
}

QStringList filesIn(const QString& folder) {
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}
