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
const QString KeptNotes = u"tblKeptNotes"_s;

} // namespace

CarriedNotes::CarriedNotes(const QString& path) {
    try {
        read(isJetFile(path) ? convertJetFile(path) : path);
    } catch (const Error& error) {
        throw Error(
            error.number(),
            u"%1 stays as it is, since its notes cannot be read: %2"_s.arg(path, error.text()));
    }
}

void CarriedNotes::read(const QString& path) {
    Workspace workspace = DBEngine::CreateWorkspace(u"Notes"_s, u"Admin"_s, {});
    Database database = workspace.OpenDatabase(path, OpenMode::ReadOnly);
    const auto collect = [this](Recordset rows) {
        for (; !rows.Eof(); rows.MoveNext()) {
            const QString note = toText(rows.Fields(u"note"_s).Value());
            if (note.trimmed().isEmpty())
                continue;
            const VerseAddress address{
                toInteger(rows.Fields(u"book"_s).Value()),
                toInteger(rows.Fields(u"chapter"_s).Value()),
                toInteger(rows.Fields(u"verse"_s).Value())};
            m_notes.emplace(address, note);
        }
    };
    collect(database.OpenRecordset(NotesOfVerses));
    try {
        collect(database.OpenRecordset(KeptNotes));
    } catch (const Error& error) {
        if (error.number() != Error::NotATable)
            throw;
    }
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
    return remarks;
}
