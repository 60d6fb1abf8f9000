#include "reader/RescuedNotes.h"

#include "basic/Error.h"
#include "core/BookNames.h"
#include "core/Catalogue.h"
#include "core/GlobalCode.h"
#include "desktop/HostPath.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

QString placeOf(const VerseRow& row) {
    QString place = row.chapter.toString() + u':' + row.verse.toString();
    attempt([&] { place.prepend(bookName(row.book) + u' '); });
    return place;
}

bool append(const QString& folder, const QByteArray& text) {
    QFile file(QDir(folder).filePath(u"unsaved notes.txt"_s));
    return file.open(QIODevice::Append) && file.write(text) == text.size() && file.flush();
}

} // namespace

bool storeNote(const VerseRow& row, const QString& note) {
    bool stored = false;
    attempt([&] {
        Recordset verses = dbBible.OpenRecordset(u"tblMain"_s, dbOpenTable);
        verses.Index(u"VerseIndex"_s);
        verses.Seek(u"="_s, row.book, row.chapter, row.verse);
        while (!verses.NoMatch() && verses.Fields(0).Value() != row.id)
            verses.MoveNext(); // another row of the same address
        if (verses.NoMatch())
            return;
        verses.Edit();
        verses.Fields(5) = note;
        verses.Update();
        stored = true;
    });
    return stored;
}

void rescueNote(const VerseRow& row, const QString& note) {
    const QString heading =
        BibleFile[static_cast<size_t>(CurrentBible)] + u" - "_s + placeOf(row) + u'\n';
    const QByteArray text = (heading + note + u"\n\n"_s).toUtf8();
    if (!append(programFolder(), text))
        append(QDir::homePath(), text);
}
