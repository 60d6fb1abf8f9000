#include "makers/CarriedNotes.h"

#include "basic/Conversion.h"
#include "basic/Error.h"
#include "jet/JetConversion.h"
#include "jet/JetVerses.h"
#include "store/DataFile.h"
#include "store/Workspace.h"

using namespace Qt::StringLiterals;

namespace {

// A verse without a note holds Null, an empty text or blanks.
const QString NotesOfVerses = u"SELECT * FROM tblMain WHERE note LIKE '*'"_s;
const QString RedVerses = u"SELECT * FROM tblMain WHERE body LIKE '\u001E*'"_s;
constexpr QChar RedMark = u'\u001E';
const QString KeptNotes = u"tblKeptNotes"_s;

VerseAddress addressOf(Recordset& row) {
    return {
        toInteger(row.Fields(u"book"_s).Value()), toInteger(row.Fields(u"chapter"_s).Value()),
        toInteger(row.Fields(u"verse"_s).Value())};
}

} // namespace

CarriedNotes::CarriedNotes(const QString& path) {
    QString fate = u"stays as it is"_s;
    try {
        QString readable = path;
        if (isJetFile(path)) {
            readable = convertJetFile(path);
            if (readable == path)
                fate = u"was converted, with its original beside it, and is not replaced"_s;
        }
        read(readable);
    } catch (const Error& error) {
        throw Error(
            error.number(),
            u"%1 %2, since its notes cannot be read: %3"_s.arg(path, fate, error.text()));
    }
}

// Opened for writing where that is possible, so that what a dead program had begun is undone.
void CarriedNotes::read(const QString& path) {
    Workspace workspace = DBEngine::CreateWorkspace(u"Notes"_s, u"Admin"_s, {});
    Database database = workspace.OpenDatabase(path);
    m_barrier = std::make_unique<WriteBarrier>(database);
    readNotes(database.OpenRecordset(NotesOfVerses));
    readRedVerses(database.OpenRecordset(RedVerses));
    try {
        readNotes(database.OpenRecordset(KeptNotes));
    } catch (const Error& error) {
        if (error.number() != Error::NotATable)
            throw;
    }
}

void CarriedNotes::readNotes(Recordset rows) {
    for (; !rows.Eof(); rows.MoveNext()) {
        const QString note = toText(rows.Fields(u"note"_s).Value());
        if (!note.trimmed().isEmpty())
            m_notes.emplace(addressOf(rows), note);
    }
}

void CarriedNotes::readRedVerses(Recordset rows) {
    for (; !rows.Eof(); rows.MoveNext())
        m_redVerses.insert(addressOf(rows));
}

QString CarriedNotes::take(const VerseAddress& address) {
    const auto found = m_notes.find(address);
    if (found == m_notes.end())
        return {};
    QString note = found->second;
    m_notes.erase(found);
    ++m_taken;
    return note;
}

void CarriedNotes::compareBody(const VerseAddress& address, const QString& body) {
    if (body.startsWith(RedMark))
        m_redVerses.erase(address);
}

void CarriedNotes::keep(const VerseAddress& address, const QString& note) {
    if (!note.trimmed().isEmpty())
        m_notes.emplace(address, note);
}

void CarriedNotes::keepRest(DataFileWriter& writer) const {
    if (m_notes.empty())
        return;
    writer.execute("CREATE TABLE tblKeptNotes "
                   "(book INTEGER, chapter INTEGER, verse INTEGER, note TEXT)");
    for (const auto& [address, note] : m_notes)
        writer.insert(KeptNotes, {address.book, address.chapter, address.verse, note});
}

QStringList CarriedNotes::remarks() const {
    QStringList remarks;
    if (m_taken > 0)
        remarks.append(u"%1 note(s) carried over"_s.arg(m_taken));
    if (!m_notes.empty()) {
        QStringList places;
        for (const auto& [address, note] : m_notes)
            places.append(verseName(address));
        remarks.append(u"%1 note(s) without a verse in this text, kept in %2: %3"_s.arg(
            QString::number(places.size()), KeptNotes, places.join(u", "_s)));
    }
    if (!m_redVerses.empty())
        remarks.append(
            u"%1 verse(s) of the old file had words in red that the new text has not"_s.arg(
                m_redVerses.size()));
    return remarks;
}
