// From the start of a process to its first page painted, and what it holds in memory then; the same
// of an empty window, as the yardstick.
#include <QCoreApplication>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

QProcessEnvironment environmentWith(const QTemporaryDir& home) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    environment.insert(u"LUMENVIA_MEASURE"_s, u"1"_s);
    environment.insert(u"LUMENVIA_HOME"_s, home.path());
    environment.insert(u"XDG_CONFIG_HOME"_s, home.filePath(u"config"_s));
    return environment;
}

// Runs a program to its end; the number that it prints, or -1.
long run(const QString& program, const QStringList& arguments, const QTemporaryDir& home) {
    QProcess process;
    process.setProcessEnvironment(environmentWith(home));
    process.start(program, arguments);
    if (!process.waitForFinished(60'000) || process.exitCode() != 0)
        return -1;
    return process.readAllStandardOutput().trimmed().toLong();
}

void measure(benchmark::State& state, const QString& program, const QTemporaryDir& home) {
    long resident = 0;
    for (auto _ : state) {
        resident = run(program, {}, home);
        if (resident < 0)
            state.SkipWithError("the program does not run");
    }
    state.counters["resident_MiB"] = static_cast<double>(resident) / 1024;
}

void registerStart(const char* name, const QString& program, const QTemporaryDir& home) {
    benchmark::RegisterBenchmark(
        name, [program, &home](benchmark::State& state) { measure(state, program, home); })
        ->Iterations(1)
        ->Repetitions(25)
        ->ReportAggregatesOnly()
        ->UseRealTime()
        ->Unit(benchmark::kMillisecond);
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    const QTemporaryDir home;
    run(QStringLiteral(LUMENVIA_MAKER), {u"make"_s, u"kjv"_s, u"--to"_s, home.path()}, home);
    registerStart("emptyWindowPainted", QStringLiteral(LUMENVIA_EMPTY_WINDOW), home);
    registerStart("firstPagePainted", QStringLiteral(LUMENVIA_PROGRAM), home);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
