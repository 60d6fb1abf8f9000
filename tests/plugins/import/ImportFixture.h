// Imports texts into a fresh folder and looks at what came of it.
#pragma once

#include "plugins/DataFiles.h"
#include "plugins/import/SampleFormats.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

class ImportTest : public testing::Test {
protected:
    // Whether the import said that the file was made; `out` and `errors` are what it wrote.
    bool import(const QString& source);
    bool importText(const QByteArray& content, const QString& name = QStringLiteral("text.txt"));
    bool importSample(const SampleFormat& format, const QList<SampleVerse>& verses);

    // "Genesis 1:1 In the beginning", one for each row.
    QStringList stored() const;

    // A file with a note, which every failure has to leave as it is.
    void makeOldFile();
    void expectOldFile() const;

    // Nothing in the folder but what was there before.
    void expectNothingMade() const;

    QTemporaryDir source;
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("DARBY.mdb"));
    QString out;
    QString errors;

private:
    bool m_hasOldFile = false;
};

class FormatTest : public ImportTest, public testing::WithParamInterface<SampleFormat> {};

// The name of a test's format.
inline std::string formatName(const testing::TestParamInfo<SampleFormat>& info) {
    return info.param.name;
}
