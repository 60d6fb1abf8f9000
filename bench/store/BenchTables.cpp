#include "BenchTables.h"

#include "store/DataFile.h"

#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <map>
#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr int Books = 66;
constexpr size_t ScatteredKeys = 1000;

void makeBible(const QString& folder) {
    if (QProcess::execute(QStringLiteral(LUMENVIA_MAKER), {u"make"_s, u"kjv"_s, u"--to"_s, folder})
        != 0)
        qFatal("The King James Bible cannot be made.");
}

// The same verses again and again, under book numbers that go on.
void makeManyBibles(const QString& path, int bibles) {
    DataFileWriter writer(path);
    createTranslationSchema(writer);
    Recordset bible = openDynaset(1);
    for (int copy = 0; copy < bibles; ++copy) {
        for (bible.MoveFirst(); !bible.Eof(); bible.MoveNext())
            writer.insert(
                u"tblMain"_s, {QVariant(), bible.Fields(1).Value().toInt() + copy * Books,
                               bible.Fields(2).Value(), bible.Fields(3).Value(),
                               bible.Fields(4).Value(), bible.Fields(5).Value()});
    }
    writer.finish();
}

Recordset open(int bibles, RecordsetType type) {
    Workspace workspace = DBEngine::CreateWorkspace(u"Bible"_s, u"Admin"_s, {});
    return workspace.OpenDatabase(benchFile(bibles)).OpenRecordset(u"tblMain"_s, type);
}

} // namespace

QString benchFile(int bibles) {
    static const QTemporaryDir folder;
    static std::map<int, QString> files;
    QString& file = files[bibles];
    if (file.isEmpty()) {
        file = folder.filePath(bibles == 1 ? u"KJV.mdb"_s : u"many.mdb"_s);
        bibles == 1 ? makeBible(folder.path()) : makeManyBibles(file, bibles);
    }
    return file;
}

Recordset openByVerse(int bibles) {
    Recordset cursor = open(bibles, dbOpenTable);
    cursor.Index(u"VerseIndex"_s);
    return cursor;
}

Recordset openDynaset(int bibles) {
    return open(bibles, dbOpenDynaset);
}

const std::string& allTexts(int bibles) {
    static std::map<int, std::string> texts;
    std::string& text = texts[bibles];
    if (text.empty()) {
        Recordset cursor = openDynaset(bibles);
        for (cursor.MoveFirst(); !cursor.Eof(); cursor.MoveNext())
            text += cursor.Fields(4).Value().toString().toStdString();
    }
    return text;
}

const std::vector<VerseKey>& scatteredKeys(int bibles) {
    static std::map<int, std::vector<VerseKey>> keys;
    std::vector<VerseKey>& chosen = keys[bibles];
    if (chosen.empty()) {
        Recordset cursor = openByVerse(bibles);
        for (cursor.MoveFirst(); !cursor.Eof(); cursor.MoveNext())
            chosen.push_back(
                {cursor.Fields(1).Value().toInt(), cursor.Fields(2).Value().toInt(),
                 cursor.Fields(3).Value().toInt()});
        std::shuffle(chosen.begin(), chosen.end(), std::mt19937(1));
        chosen.resize(ScatteredKeys);
    }
    return chosen;
}

void withBothTables(benchmark::internal::Benchmark* benchmark) {
    benchmark->ArgName("bibles")->Arg(1)->Arg(10)->Repetitions(15)->ReportAggregatesOnly();
}

int biblesOf(const benchmark::State& state) {
    return static_cast<int>(state.range(0));
}
