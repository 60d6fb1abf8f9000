#include "plugins/jet/Mutation.h"

#include "plugins/jet/JetPages.h"

#include <random>

using namespace Qt::StringLiterals;

namespace {

class Mutator {
public:
    Mutator(const QByteArray& good, int pageSize, unsigned seed)
        : m_random(seed)
        , m_pageSize(pageSize)
        , m_good(good)
        , m_result{{}, good, {}} {}

    Mutation run() {
        using Kind = std::pair<QString, void (Mutator::*)()>;
        static const Kind kinds[] = {
            {u"single bytes"_s, &Mutator::changeBytes},
            {u"single bits"_s, &Mutator::flipBit},
            {u"run of bytes"_s, &Mutator::changeRun},
            {u"page heads"_s, &Mutator::changeHeads},
            {u"exchanged pages"_s, &Mutator::exchange},
            {u"extreme numbers"_s, &Mutator::setExtreme},
            {u"truncation"_s, &Mutator::truncate},
        };
        const auto& [name, change] = kinds[below(std::size(kinds))];
        m_result.kind = name;
        (this->*change)();
        return m_result;
    }

private:
    unsigned below(size_t end) { return static_cast<unsigned>(m_random() % end); }
    qsizetype place(qsizetype size) { return below(static_cast<size_t>(m_good.size() - size + 1)); }
    qsizetype page() { return below(static_cast<size_t>(pageCount())) * qsizetype(m_pageSize); }
    qsizetype pageCount() const { return m_good.size() / m_pageSize; }

    // Only what really differs counts as changed.
    void put(qsizetype offset, const QByteArray& bytes) {
        for (qsizetype index = 0; index < bytes.size(); ++index) {
            if (m_result.bytes[offset + index] == bytes[index])
                continue;
            m_result.bytes[offset + index] = bytes[index];
            m_result.changes.append({offset + index, 1});
        }
    }

    QByteArray randomBytes(qsizetype size) {
        QByteArray bytes;
        while (bytes.size() < size)
            bytes += char(m_random());
        return bytes;
    }

    void changeBytes() {
        for (unsigned count = 1 + below(4); count > 0; --count)
            put(place(1), randomBytes(1));
    }

    void changeRun() {
        const qsizetype size = 2 + below(200);
        put(place(size), below(2) == 0 ? QByteArray(size, '\0') : randomBytes(size));
    }

    // The heads of pages and definitions steer the reader: here a change does the most harm.
    void changeHeads() {
        for (unsigned count = 1 + below(3); count > 0; --count)
            put(page() + below(96), randomBytes(1));
    }

    // One bit of a byte that says something: where a page is nearly empty, it steers.
    void flipBit() {
        const qsizetype start = page();
        QList<qsizetype> telling;
        for (qsizetype offset = start; offset < start + m_pageSize; ++offset) {
            if (m_good[offset] != '\0')
                telling.append(offset);
        }
        if (telling.isEmpty())
            return;
        const qsizetype offset = telling[below(static_cast<size_t>(telling.size()))];
        put(offset, QByteArray(1, char(m_good[offset] ^ 1 << below(8))));
    }

    void exchange() {
        const qsizetype one = page();
        const qsizetype other = page();
        const QByteArray kept = m_result.bytes.mid(one, m_pageSize);
        put(one, m_result.bytes.mid(other, m_pageSize));
        put(other, kept);
    }

    void setExtreme() {
        const quint32 somewhere = below(static_cast<size_t>(pageCount() + 2)) << 8 | below(4);
        const quint32 numbers[] = {0,          1,          0xff,       0x7f,
                                   0xffff,     0x7fff,     0x8000,     0xc000,
                                   0x4000,     0xffffffff, 0x7fffffff, 0x80000000,
                                   0x3fffffff, 0xffffff00, somewhere,  somewhere >> 8};
        const QByteArray bytes = longBytes(numbers[below(std::size(numbers))]);
        const qsizetype offset = below(2) == 0 ? page() + below(128) : place(4);
        put(offset, below(2) == 0 ? bytes : bytes.left(2));
    }

    void truncate() {
        const qsizetype size = below(2) == 0 ? place(1) : page();
        m_result.bytes.truncate(size);
        m_result.changes.append({size, m_good.size() - size});
    }

    std::mt19937 m_random;
    int m_pageSize;
    const QByteArray& m_good;
    Mutation m_result;
};

} // namespace

Mutation mutate(const QByteArray& good, int pageSize, unsigned seed) {
    return Mutator(good, pageSize, seed).run();
}
