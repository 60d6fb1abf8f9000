#include "BenchTables.h"

#include "store/DataFile.h"

#include <QTemporaryDir>
#include <algorithm>
#include <map>
#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr int BodyLength = 130;
constexpr int VersesInChapter = 26;
constexpr int Books = 66;

// How often a word has so many letters, and a letter stands in a word, in English running text.
const std::vector<double> WordLengths = {0, 3, 16, 25, 22, 12, 8, 6, 4, 2, 1, 1};
const std::vector<double> LetterFrequencies = {8.2,  1.5,  2.8, 4.3,  12.7, 2.2,  2.0, 6.1, 7.0,
                                               0.15, 0.77, 4.0, 2.4,  6.7,  7.5,  1.9, 0.1, 6.0,
                                               6.3,  9.1,  2.8, 0.98, 2.4,  0.15, 2.0, 0.07};

class TextMaker {
public:
    QString verse() {
        QString text;
        while (text.size() < BodyLength)
            text += word() + (m_random() % 9 == 0 ? u", "_s : u" "_s);
        text[0] = text[0].toUpper();
        return text + u'.';
    }

private:
    QString word() {
        QString made;
        for (int length = m_lengths(m_random); length > 0; --length)
            made += QChar(u'a' + m_letters(m_random));
        return made;
    }

    std::mt19937 m_random{4711};
    std::discrete_distribution<int> m_lengths{WordLengths.begin(), WordLengths.end()};
    std::discrete_distribution<int> m_letters{LetterFrequencies.begin(), LetterFrequencies.end()};
};

void makeTable(const QString& path, int rows) {
    DataFileWriter writer(path);
    createTranslationSchema(writer);
    TextMaker text;
    const int rowsInBook = rows / Books + 1;
    for (int row = 0; row < rows; ++row) {
        const int inBook = row % rowsInBook;
        writer.insert(
            u"tblMain"_s, {QVariant(), row / rowsInBook + 1, inBook / VersesInChapter + 1,
                           inBook % VersesInChapter + 1, text.verse(), QVariant()});
    }
    writer.finish();
}

Recordset open(int rows, RecordsetType type) {
    Workspace workspace = DBEngine::CreateWorkspace(u"Bible"_s, u"Admin"_s, {});
    return workspace.OpenDatabase(benchFile(rows)).OpenRecordset(u"tblMain"_s, type);
}

} // namespace

QString benchFile(int rows) {
    static const QTemporaryDir folder;
    static std::map<int, QString> files;
    QString& file = files[rows];
    if (file.isEmpty() && rows == BibleRows)
        file = qEnvironmentVariable("LUMENVIA_BENCH_KJV");
    if (file.isEmpty()) {
        file = folder.filePath(u"bench%1.mdb"_s.arg(rows));
        makeTable(file, rows);
    }
    return file;
}

Recordset openByVerse(int rows) {
    Recordset cursor = open(rows, dbOpenTable);
    cursor.Index(u"VerseIndex"_s);
    return cursor;
}

Recordset openDynaset(int rows) {
    return open(rows, dbOpenDynaset);
}

const std::string& allTexts(int rows) {
    static std::map<int, std::string> texts;
    std::string& text = texts[rows];
    if (text.empty()) {
        Recordset cursor = openDynaset(rows);
        for (cursor.MoveFirst(); !cursor.Eof(); cursor.MoveNext())
            text += cursor.Fields(4).Value().toString().toStdString();
    }
    return text;
}

const std::vector<VerseKey>& scatteredKeys(int rows) {
    static std::map<int, std::vector<VerseKey>> keys;
    std::vector<VerseKey>& chosen = keys[rows];
    if (chosen.empty()) {
        Recordset cursor = openByVerse(rows);
        for (cursor.MoveFirst(); !cursor.Eof(); cursor.MoveNext())
            chosen.push_back(
                {cursor.Fields(1).Value().toInt(), cursor.Fields(2).Value().toInt(),
                 cursor.Fields(3).Value().toInt()});
        std::shuffle(chosen.begin(), chosen.end(), std::mt19937(1));
        chosen.resize(1000);
    }
    return chosen;
}
