// What the tests of all searches share: the texts that a user may type, and the box of a lost file.
#pragma once

#include "Configuration.h"
#include "basic/Error.h"
#include "core/Catalogue.h"
#include "core/GlobalCode.h"
#include "desktop/Desktop.h"
#include "desktop/HostPath.h"
#include "store/Criteria.h"

#include <QFile>
#include <QStringList>

using namespace Qt::StringLiterals;

// Marks of other search languages, markup, other scripts, half a character, blanks, and a word
// without end: each is searched for as it stands, and no verse of the tests holds one.
inline QStringList oddTexts() {
    return {
        u"gr?ce"_s,
        u"gr#ce"_s,
        u"[g]race"_s,
        u"gr\\ace"_s,
        u"gr%ce"_s,
        u"gr_ce"_s,
        u"grace;;"_s,
        u"(grace)"_s,
        u"{grace}"_s,
        u"<b>grace</b>"_s,
        u"-- "_s,
        u"; drop table tblMain"_s,
        u"   "_s,
        u"благодать"_s,
        u"λόγος"_s,
        u"שלום"_s,
        u"恵み"_s,
        u"\U0001F54A"_s,
        u"grace"_s + QChar(0xD83D),
        QString(20000, QChar(u'g'))};
}

// They spoil criteria in single quotes, those of the find bar and of the notes.
inline QStringList singleQuotedTexts() {
    return {u"'"_s, u"don't"_s, u"'grace'"_s, u"' or 1=1"_s, u"x' or book = 1 and '"_s};
}

// They spoil criteria in double quotes, those of all other searches.
inline QStringList doubleQuotedTexts() {
    return {
        u"\""_s,
        u"\"\""_s,
        u"a\"b"_s,
        u"\"grace\""_s,
        u"\" or 1=1"_s,
        u"x\" (("_s,
        u"\")) ; drop table tblMain"_s};
}

// What the store says of a criteria text.
inline QString complaintAbout(const QString& criteria) {
    try {
        parseCriteria(criteria);
    } catch (const Error& error) {
        return error.text();
    }
    return u"the criteria are well formed"_s;
}

// Tells of a translation whose file is gone.
inline Message missingFile(const QString& title) {
    const QString blankLine = u"\r\n\r\n"_s;
    return {
        BibleFile[static_cast<size_t>(CurrentBible)] + u" is not in "_s + programFolder()
            + blankLine + u"Get your free copy from "_s + configuration::HomeUrl + blankLine
            + u"Contact "_s + configuration::SupportAddress + u" for more info if needed."_s,
        title, MessageIcon::Information};
}

inline QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
