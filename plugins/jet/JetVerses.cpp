#include "jet/JetVerses.h"

#include "basic/Error.h"
#include "jet/JetCatalogue.h"
#include "jet/JetKind.h"
#include "jet/JetRows.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

const QString VerseTable = u"tblMain"_s;
constexpr int LastBook = 66;
constexpr qsizetype NamedAddresses = 5; // as many as a remark spells out

QString checkedPath(const QString& path) {
    if (kindOfFile(path) != FileKind::Jet)
        throw Error(
            Error::NotADatabase, u"%1 is no Jet database."_s.arg(QFileInfo(path).fileName()));
    return path;
}

bool isWithinTheBooks(const VerseAddress& address) {
    return address.book >= 1 && address.book <= LastBook && address.chapter >= 1
           && address.verse >= 1;
}

const JetColumn& fieldOf(const JetTable& table, const QString& name) {
    const JetColumn* const column = table.columnNamed(name);
    if (!column)
        throw Error(
            Error::NotADatabase, u"%1 has no field \"%2\" in its table %3."_s.arg(
                                     table.file().name(), name, table.name()));
    return *column;
}

} // namespace

class JetVerses::Table {
public:
    explicit Table(const QString& path)
        : m_file(checkedPath(path))
        , m_table(m_file, findJetTable(m_file, VerseTable).page, VerseTable)
        , m_rows(m_table)
        , m_book(fieldOf(m_table, u"book"_s))
        , m_chapter(fieldOf(m_table, u"chapter"_s))
        , m_verse(fieldOf(m_table, u"verse"_s))
        , m_body(fieldOf(m_table, u"body"_s))
        , m_note(m_table.columnNamed(u"note"_s)) {}

    std::optional<Verse> next() {
        while (m_rows.next()) {
            if (std::optional<Verse> verse = currentVerse())
                return verse;
        }
        return std::nullopt;
    }

    double fraction() const {
        const auto rows = double(m_table.definition().rowCount());
        return rows == 0 ? 1 : qMin(1.0, double(m_rows.count()) / rows);
    }

    QStringList remarks() const;
    SourceInfo info() const { return {m_file.name(), u"Jet database %1"_s.arg(m_file.name()), {}}; }

private:
    // Numbers that are held as texts count too; anything else is 0, which no address has.
    int number(const JetColumn& column) const { return m_rows.value(column).toInt(); }

    std::optional<Verse> currentVerse() {
        Verse verse{{number(m_book), number(m_chapter), number(m_verse)}};
        const bool isOfTheBooks = isWithinTheBooks(verse.address);
        if (isOfTheBooks)
            verse.body = m_rows.value(m_body).toString();
        else
            leaveOut(verse.address);
        if (m_note)
            verse.note = m_rows.value(*m_note).toString();
        if (!verse.body.isEmpty() || !verse.note.trimmed().isEmpty())
            return verse;
        m_emptyVerses += isOfTheBooks ? 1 : 0;
        return std::nullopt;
    }

    void leaveOut(const VerseAddress& address) {
        if (++m_leftOut <= NamedAddresses)
            m_named.append(
                u"book %1, %2:%3"_s.arg(address.book).arg(address.chapter).arg(address.verse));
    }

    JetFile m_file;
    JetTable m_table;
    JetRows m_rows;
    const JetColumn& m_book;
    const JetColumn& m_chapter;
    const JetColumn& m_verse;
    const JetColumn& m_body;
    const JetColumn* m_note;
    qint64 m_leftOut = 0;
    qint64 m_emptyVerses = 0;
    QStringList m_named;
};

QStringList JetVerses::Table::remarks() const {
    QStringList remarks;
    if (m_leftOut > 0) {
        const QString more = m_leftOut > NamedAddresses ? u" ..."_s : QString();
        remarks.append(
            u"left out, since their address is none of the 66 books: %1 verse(s) (%2%3)"_s.arg(
                QString::number(m_leftOut), m_named.join(u"; "_s), more));
    }
    if (m_emptyVerses > 0)
        remarks.append(u"left out, since they have no text: %1 verse(s)"_s.arg(m_emptyVerses));
    return remarks;
}

JetVerses::JetVerses(const QString& path)
    : m_table(std::make_unique<Table>(path)) {}

JetVerses::~JetVerses() = default;

std::optional<Verse> JetVerses::next() {
    return m_table->next();
}

double JetVerses::fraction() const {
    return m_table->fraction();
}

QStringList JetVerses::remarks() const {
    return m_table->remarks();
}

SourceInfo JetVerses::info() const {
    return m_table->info();
}
