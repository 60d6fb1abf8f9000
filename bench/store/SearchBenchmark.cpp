// Searching the whole table, beside a plain search of the same bytes in memory.
#include "BenchTables.h"

#include "basic/Text.h"

#include <array>
#include <cctype>

using namespace Qt::StringLiterals;

namespace {

// Words that the tables do not hold: one with rare letters, one of common letters alone.
const QString RareWord = u"Melchizedek quav"_s;
const QString CommonWord = u"ethis arento the"_s;
const QString GreekWord = u"Λόγος"_s;
const QString OneLetter = u"ñ"_s;

constexpr int VersesOfABible = 31102;

// The yardstick: the first letter through a fold table, then the rest.
class PlainScan {
public:
    explicit PlainScan(const std::string& word)
        : m_word(word) {
        for (size_t byte = 0; byte < m_fold.size(); ++byte)
            m_fold[byte] = static_cast<unsigned char>(std::tolower(static_cast<int>(byte)));
        for (char& letter : m_word)
            letter = static_cast<char>(m_fold[static_cast<unsigned char>(letter)]);
    }

    bool isIn(const std::string& text) const {
        const auto* const bytes = reinterpret_cast<const unsigned char*>(text.data());
        const auto* const word = reinterpret_cast<const unsigned char*>(m_word.data());
        const size_t last = text.size() - m_word.size();
        for (size_t place = 0; place <= last; ++place) {
            if (m_fold[bytes[place]] == word[0] && restIsAt(bytes + place, word))
                return true;
        }
        return false;
    }

private:
    bool restIsAt(const unsigned char* bytes, const unsigned char* word) const {
        for (size_t index = 1; index < m_word.size(); ++index) {
            if (m_fold[bytes[index]] != word[index])
                return false;
        }
        return true;
    }

    std::string m_word;
    std::array<unsigned char, 256> m_fold{};
};

void findWithoutHit(benchmark::State& state, const QString& word) {
    Recordset cursor = openDynaset(biblesOf(state));
    for (auto _ : state)
        cursor.FindFirst(u"Body like '*"_s + word + u"*'"_s);
    if (!cursor.NoMatch())
        state.SkipWithError("the word was found");
    state.SetBytesProcessed(
        state.iterations() * static_cast<int64_t>(allTexts(biblesOf(state)).size()));
}

// As the find bar does it: the file is opened for each search, and nothing of it is in the cache
// of the connection.
void openAndFindWithoutHit(benchmark::State& state) {
    for (auto _ : state)
        openDynaset(biblesOf(state)).FindFirst(u"Body like '*"_s + RareWord + u"*'"_s);
}

void yardstick(benchmark::State& state, const QString& word) {
    const std::string& text = allTexts(biblesOf(state));
    const PlainScan scan(word.toStdString());
    for (auto _ : state)
        benchmark::DoNotOptimize(scan.isIn(text));
    state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(text.size()));
}

void FindFirst_byNumber(benchmark::State& state) {
    Recordset cursor = openDynaset(biblesOf(state));
    int number = 1;
    for (auto _ : state) {
        cursor.FindFirst(u"ID = "_s + Str(number));
        number = number * 7919 % VersesOfABible + 1;
    }
}

void Select_oneWordOutOfMany(benchmark::State& state) {
    Workspace workspace = DBEngine::CreateWorkspace(u"Bible"_s, u"Admin"_s, {});
    Database database = workspace.OpenDatabase(benchFile(biblesOf(state)));
    for (auto _ : state)
        benchmark::DoNotOptimize(database.OpenRecordset(
            u"SELECT * FROM tblMain WHERE (((body like \"*the*\")) )"_s, dbOpenDynaset));
}

void searching(benchmark::internal::Benchmark* benchmark) {
    withBothTables(benchmark);
    benchmark->Unit(benchmark::kMillisecond);
}

} // namespace

BENCHMARK_CAPTURE(yardstick, plainScanInMemory_rareLetters, RareWord)->Apply(searching);
BENCHMARK_CAPTURE(findWithoutHit, rareLetters, RareWord)->Apply(searching);
BENCHMARK_CAPTURE(yardstick, plainScanInMemory_commonLetters, CommonWord)->Apply(searching);
BENCHMARK_CAPTURE(findWithoutHit, commonLetters, CommonWord)->Apply(searching);
BENCHMARK_CAPTURE(findWithoutHit, greekLetters, GreekWord)->Apply(searching);
BENCHMARK_CAPTURE(findWithoutHit, oneLetter, OneLetter)->Apply(searching);
BENCHMARK(openAndFindWithoutHit)->Apply(searching);
BENCHMARK(Select_oneWordOutOfMany)->Apply(searching);
BENCHMARK(FindFirst_byNumber)->Apply(withBothTables);
