// Thousands of damaged files: each one is refused and left as it is, or gives a file of true rows.
// Never a crash, a hang or half a file. LUMENVIA_MUTATIONS sets how many.
#include "plugins/jet/JetTest.h"
#include "plugins/jet/Mutation.h"
#include "plugins/jet/TrueRows.h"

#include "jet/ProcessLimits.h"

#include <QDir>
#include <QFile>
#include <csignal>
#include <fcntl.h>
#include <iostream>
#include <map>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int DefaultCount = 10000;
constexpr int BatchSize = 250;       // conversions in one process
constexpr unsigned HangSeconds = 20; // of one conversion, which takes milliseconds

enum Outcome : char { NotRun, Refused, Unchanged, Changed, Faulty };

// What the converting process tells its parent, in memory that both see.
struct Report {
    int current;
    char fault[512];
    Outcome outcomes[100000];
};

struct Source {
    QByteArray good;
    int pageSize;
    TrueRows trueRows;
};

QList<JetTableOutline> tables() {
    JetTableOutline verses = verseTable();
    const QList<JetRowOutline> some = verses.rows;
    for (int row = 4; row < 60; ++row) {
        JetRowOutline outline = some[row % 4];
        outline.values[0] = row + 1;
        outline.values[3] = row;
        outline.values[5] =
            row % 4 == 0 ? QVariant() : QVariant(u"note %1 "_s.arg(row).repeated(20));
        outline.values[4] = u"verse %1 of the text "_s.arg(row).repeated(1 + row % 9);
        outline.fate = row % 11 == 0 ? JetRowOutline::Deleted : outline.fate;
        verses.rows.append(outline);
    }
    verses.rows[1].values[5] = u"a long note "_s.repeated(300);
    verses.rows[2].values[5] = u"a longer note "_s.repeated(500);
    JetTableOutline topics{
        u"tblTopicName"_s,
        {{u"unique"_s, JetType::Long, 0, true}, {u"topicname"_s, JetType::Text, 100}},
        {{{1, u"Love"_s}}, {{3, u""_s}}, {{4, QVariant()}, JetRowOutline::Deleted}, {{6, u" "_s}}},
        9};
    topics.mapOfPages = true;
    JetTableOutline wide{u"Wide"_s, {}, {{}, {}, {}}};
    for (int field = 0; field < 120; ++field) {
        const JetType type = static_cast<JetType>(1 + field % 12);
        wide.fields.append({u"a field of many %1"_s.arg(field), type, 50});
        for (JetRowOutline& row : wide.rows)
            row.values.append(field % 5 == 0 ? QVariant() : QVariant(field));
    }
    return {verses, topics, wide};
}

class JetMutations : public JetTest {
protected:
    JetMutations()
        : m_report(static_cast<Report*>(mmap(
            nullptr, sizeof(Report), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0))) {
        for (const auto& [version, key] :
             {std::pair(JetVersion::Jet3, 0u), std::pair(JetVersion::Jet4, 0u),
              std::pair(JetVersion::Jet4, 77u), std::pair(JetVersion::Jet3, 77u)})
            addSource(version, key);
    }
    ~JetMutations() override { munmap(m_report, sizeof(Report)); }

    void addSource(JetVersion version, quint32 key) {
        JetFixture fixture(version, key);
        QStringList names;
        for (const JetTableOutline& table : tables()) {
            fixture.add(table);
            names.append(table.name);
        }
        const QByteArray good = fixture.bytes();
        write(good);
        convertJetFile(path(), options());
        m_sources.push_back({good, fixture.format().pageSize, TrueRows(fixture, names, path())});
        EXPECT_TRUE(m_sources.back().trueRows.isUnchanged(path()));
        clear();
    }

    // Plain files mostly: in an encoded one, a change of a byte is a change of that byte too, but
    // moved pages decode to noise.
    const Source& sourceOf(int number) const {
        return m_sources[number % 8 < 6 ? number % 2 : 2 + number % 2];
    }

    Mutation mutation(int number) const {
        const Source& source = sourceOf(number);
        return mutate(source.good, source.pageSize, static_cast<unsigned>(number));
    }

    void clear() const {
        for (const QString& name : leftovers() + QStringList(u"kjv.mdb"_s))
            QFile::remove(path(name));
    }

    // Converts a damaged file and looks at what came of it; what is wrong with that.
    QString run(int number) const {
        const Mutation damaged = mutation(number);
        const TrueRows& trueRows = sourceOf(number).trueRows;
        write(damaged.bytes);
        const QString error = errorTextOf([&] { convertJetFile(path(), options()); });
        if (!error.isEmpty()) {
            m_report->outcomes[number] = Refused;
            if (read() != damaged.bytes || !leftovers().isEmpty())
                return u"refused (%1), but touched"_s.arg(error);
            return {};
        }
        m_report->outcomes[number] = trueRows.isUnchanged(path()) ? Unchanged : Changed;
        if (leftovers() != QStringList(u"kjv.mdb.jet"_s) || read(u"kjv.mdb.jet"_s) != damaged.bytes)
            return u"the original was not kept"_s;
        return trueRows.fault(path(), damaged.changes);
    }

    // In a process of its own, which goes on until a conversion fails.
    void runBatch(int first, int end) const {
        limitThisProcess();
        const int nowhere = open("/dev/null", O_WRONLY);
        dup2(nowhere, STDERR_FILENO);
        for (int number = first; number < end; ++number) {
            m_report->current = number;
            alarm(HangSeconds);
            const QString fault = run(number);
            clear();
            if (!fault.isEmpty()) {
                m_report->outcomes[number] = Faulty;
                qstrncpy(m_report->fault, fault.toUtf8().constData(), sizeof m_report->fault);
                _exit(1);
            }
        }
        _exit(0);
    }

    // The first one that is still to be done.
    int convertBatch(int first, int count) const {
        const int end = std::min(first + BatchSize, count);
        const pid_t child = fork();
        if (child == 0)
            runBatch(first, end);
        int status = 0;
        waitpid(child, &status, 0);
        if (WIFEXITED(status) && WEXITSTATUS(status) == 0)
            return end;
        const int number = m_report->current;
        ADD_FAILURE() << "mutation " << number << " (" << qPrintable(mutation(number).kind) << "): "
                      << (WIFSIGNALED(status) ? strsignal(WTERMSIG(status)) : m_report->fault);
        clear();
        return number + 1;
    }

    void printStatistics(int count) const {
        std::map<QString, std::map<Outcome, int>> statistics;
        for (int number = 0; number < count; ++number)
            ++statistics[mutation(number).kind][m_report->outcomes[number]];
        for (auto& [kind, outcomes] : statistics)
            std::cout << qPrintable(kind.leftJustified(16)) << " refused " << outcomes[Refused]
                      << ", converted unchanged " << outcomes[Unchanged]
                      << ", converted with changed values " << outcomes[Changed] << ", faulty "
                      << outcomes[Faulty] + outcomes[NotRun] << '\n';
    }

private:
    Report* m_report;
    std::vector<Source> m_sources;
};

TEST_F(JetMutations, damagedFilesAreRefusedOrGiveTrueRows) {
    bool isSet = false;
    const int wanted = qEnvironmentVariableIntValue("LUMENVIA_MUTATIONS", &isSet);
    const int count =
        std::min(isSet ? wanted : DefaultCount, int(std::extent_v<decltype(Report::outcomes)>));
    for (int next = 0; next < count;)
        next = convertBatch(next, count);
    printStatistics(count);
}

} // namespace
