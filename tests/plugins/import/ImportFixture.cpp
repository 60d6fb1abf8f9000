#include "plugins/import/ImportFixture.h"

#include "Importing.h"

#include <sstream>

using namespace Qt::StringLiterals;

bool ImportTest::import(const QString& text) {
    std::ostringstream outStream;
    std::ostringstream errorStream;
    Console console{outStream, errorStream};
    const bool made = ::importText({text, u"DARBY.mdb"_s, folder.path()}, console);
    out = QString::fromStdString(outStream.str());
    errors = QString::fromStdString(errorStream.str());
    EXPECT_EQ(made, errors.isEmpty()) << qPrintable(errors);
    return made;
}

bool ImportTest::importText(const QByteArray& content, const QString& name) {
    return import(writeFile(source.path(), name, content));
}

bool ImportTest::importSample(const SampleFormat& format, const QList<SampleVerse>& verses) {
    return import(writeSample(format, verses, source.path()));
}

QStringList ImportTest::stored() const {
    QStringList verses;
    for (const QVariantList& row : rowsOf(path, u"tblMain"_s))
        verses.append(
            verseName({row[1].toInt(), row[2].toInt(), row[3].toInt()}) + u' ' + row[4].toString());
    return verses;
}

void ImportTest::makeOldFile() {
    ASSERT_TRUE(importText("Gen\t1\t1\tOld\n", u"old.txt"_s)) << qPrintable(errors);
    setNote(path, {1, 1, 1}, u"mine"_s);
    m_hasOldFile = true;
}

void ImportTest::expectOldFile() const {
    EXPECT_EQ(filesIn(folder.path()), QStringList(u"DARBY.mdb"_s));
    EXPECT_EQ(stored(), QStringList(u"Genesis 1:1 Old"_s));
    EXPECT_EQ(verseField(path, {1, 1, 1}, u"note"_s), u"mine"_s);
}

void ImportTest::expectNothingMade() const {
    if (m_hasOldFile)
        expectOldFile();
    else
        EXPECT_TRUE(filesIn(folder.path()).isEmpty());
}
