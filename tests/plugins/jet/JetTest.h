// A fresh folder for each test, with short ways to put Jet databases there, to convert them and to
// look at what came out.
#pragma once

#include "plugins/jet/JetFixture.h"

#include "basic/Error.h"
#include "jet/JetConversion.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

// So that a failed comparison shows the values.
void PrintTo(const QString& text, std::ostream* stream);
void PrintTo(const QVariant& value, std::ostream* stream);
void PrintTo(const QList<QVariantList>& rows, std::ostream* stream);

// A value in the store's own types.
inline QVariant number(qlonglong value) {
    return value;
}

class JetTest : public testing::Test {
protected:
    JetTest();

    QString path(const QString& name = u"kjv.mdb"_s) const { return m_folder.filePath(name); }
    JetConversionOptions options() const;

    void write(const QByteArray& bytes, const QString& name = u"kjv.mdb"_s) const;
    QByteArray read(const QString& name = u"kjv.mdb"_s) const;

    // All that lies in the folder but the file itself.
    QStringList leftovers() const;

    // The rows of the first table in a file of these tables, after its conversion.
    QList<QVariantList> converted(JetFixture fixture, const QString& table = u"Table1"_s) const;

    // The text of the error that converting such a file gives. Fails the test where the file was
    // touched or anything was left beside it.
    QString refusal(const QByteArray& bytes) const;

private:
    QTemporaryDir m_folder;
};

// In the table's own order, field by field.
QList<QVariantList> rowsOf(const QString& path, const QString& table);
QStringList fieldsOf(const QString& path, const QString& table);

// The number that the table gives to a new row.
qlonglong numberOfNewRow(const QString& path, const QString& table);

// A file with one table "Table1" of one field.
JetFixture withField(
    JetVersion version, const JetFieldOutline& field, const QVariantList& values, quint32 key = 0);

// A translation with a note or two.
JetTableOutline verseTable();
QByteArray verseFile(JetVersion version = JetVersion::Jet4);

// The text of the Error that the operation throws; empty if it throws none.
template <class Operation>
QString errorTextOf(Operation&& operation) {
    try {
        operation();
    } catch (const Error& error) {
        return error.text();
    }
    return {};
}
