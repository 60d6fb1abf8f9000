// lumenvia-plugins at its work, as processes of their own, with the memory that they take. The
// yardstick is the copying of what was made, brought to the disk.
#include "JetFile.h"
#include "MeasuredProcess.h"
#include "OsisFile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QString Tool = QStringLiteral(LUMENVIA_MAKER);

QTemporaryDir& folder() {
    static QTemporaryDir folder;
    return folder;
}

QString fileNamed(const char* name) {
    return folder().filePath(QString::fromLatin1(name));
}

void measure(benchmark::State& state, const QStringList& arguments, void (*prepare)()) {
    double peak = 0;
    for (auto _ : state) {
        if (prepare)
            prepare();
        const Usage usage = runMeasured(Tool, arguments);
        if (!usage.hasSucceeded)
            state.SkipWithError("the tool has failed");
        state.SetIterationTime(usage.seconds);
        peak = usage.peakMemory;
    }
    state.counters["peak_MiB"] = peak;
}

void copyToDisk(benchmark::State& state) {
    for (auto _ : state) {
        QFile source(fileNamed("KJV.mdb"));
        QFile copy(fileNamed("copy"));
        if (!source.open(QIODevice::ReadOnly) || !copy.open(QIODevice::WriteOnly)
            || copy.write(source.readAll()) < 0 || !copy.flush() || fsync(copy.handle()) != 0)
            state.SkipWithError("the disk has failed");
    }
}

void putJetFileBack() {
    QFile::remove(fileNamed("jet/KJV.mdb.jet"));
    QFile::remove(fileNamed("jet/KJV.mdb"));
    QFile::copy(fileNamed("source.jet"), fileNamed("jet/KJV.mdb"));
}

void add(const char* name, const QStringList& arguments, void (*prepare)() = nullptr) {
    benchmark::RegisterBenchmark(
        name, [arguments, prepare](benchmark::State& state) { measure(state, arguments, prepare); })
        ->Iterations(1)
        ->Repetitions(9)
        ->ReportAggregatesOnly()
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
}

bool makeSources() {
    const QString home = folder().path();
    QDir(home).mkdir(u"jet"_s);
    if (!runMeasured(Tool, {u"make"_s, u"kjv"_s, u"--to"_s, home}).hasSucceeded)
        return false;
    writeOsis(fileNamed("KJV.mdb"), fileNamed("kjv.osis"));
    writeJet(fileNamed("KJV.mdb"), fileNamed("source.jet"));
    return true;
}

} // namespace

int main(int argc, char** argv) {
    if (!makeSources())
        return 1;
    const QString home = folder().path();
    benchmark::RegisterBenchmark("copyOfTheFile", copyToDisk)
        ->Repetitions(9)
        ->ReportAggregatesOnly()
        ->UseRealTime()
        ->Unit(benchmark::kMillisecond);
    add("kjvFromSword", {u"make"_s, u"kjv"_s, u"--force"_s, u"--to"_s, home});
    add("osisImported",
        {u"import"_s, fileNamed("kjv.osis"), u"--as"_s, u"darby"_s, u"--to"_s, home});
    add("jetConverted", {u"convert"_s, fileNamed("jet/KJV.mdb")}, putJetFileBack);
    add("allWorks", {u"make"_s, u"all"_s, u"--force"_s, u"--to"_s, home});
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
