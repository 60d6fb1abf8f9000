#include "readers/SwordVerses.h"

#include "basic/Error.h"
#include "text/RedLetterRun.h"

using namespace Qt::StringLiterals;

SwordVerses::SwordVerses(
    std::unique_ptr<SwordModule> module, const QString& origin, const TextRules& rules)
    : m_module(std::move(module))
    , m_origin(origin)
    , m_rules(rules)
    , m_fragments(rules.addedWords) {
    const QString markup = m_module->description("SourceType");
    if (markup.compare("OSIS"_L1, Qt::CaseInsensitive) != 0)
        throw Error(
            Error::NotADatabase, u"%1 is in the mark-up %2; expected OSIS."_s.arg(
                                     origin, markup.isEmpty() ? u"of no name"_s : markup));
}

std::optional<Verse> SwordVerses::next() {
    while (m_module->next()) {
        if (std::optional<Verse> verse = currentVerse())
            return verse;
    }
    return std::nullopt;
}

std::optional<Verse> SwordVerses::currentVerse() {
    const QString entry = m_module->entry();
    if (entry.isEmpty() || !currentBook())
        return std::nullopt;
    const VerseAddress address{m_book->number, m_module->chapter(), m_module->verse()};
    MarkedText text = m_fragments.flatten(entry);
    if (m_fragments.wasDamaged() && m_damagedVerses++ == 0)
        m_firstDamaged = address;
    if (m_rules.correct)
        m_rules.correct(address, text);
    if (text.text().isEmpty())
        return std::nullopt;
    m_ends.see(address);
    return Verse{address, storedBody(text)};
}

const Book* SwordVerses::currentBook() {
    const QString id = m_module->book();
    if (id != m_bookId) {
        m_bookId = id;
        m_book = findBook(id);
        if (!m_book)
            m_booksLeftOut.append(id);
    }
    return m_book;
}

QStringList SwordVerses::remarks() const {
    QStringList remarks;
    if (!m_booksLeftOut.isEmpty())
        remarks.append(u"left out, since they are none of the 66 books: %1"_s.arg(
            m_booksLeftOut.join(u", "_s)));
    if (m_damagedVerses > 0)
        remarks.append(
            u"%1 verse(s) with damaged mark-up taken as plain text, the first one %2"_s.arg(
                QString::number(m_damagedVerses), verseName(m_firstDamaged)));
    m_ends.report(remarks);
    return remarks;
}

SourceInfo SwordVerses::info() const {
    return {
        m_module->description("Description"),
        m_origin,
        m_module->description("DistributionLicense"),
    };
}
