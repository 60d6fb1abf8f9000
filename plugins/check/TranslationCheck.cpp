#include "check/TranslationCheck.h"

#include "basic/Error.h"
#include "check/FieldText.h"

using namespace Qt::StringLiterals;

namespace {

// Before the text of a verse with words in red: a mark, the start, a separator, the length.
constexpr QChar RedMark(30);
constexpr qsizetype PrefixLength = 8;
constexpr int StartAt = 1;
constexpr int LengthAt = 5;
constexpr int Digits = 3;

bool redRunFits(const QString& body) {
    bool startIsNumber = false;
    bool lengthIsNumber = false;
    const int start = body.mid(StartAt, Digits).toInt(&startIsNumber);
    const int length = body.mid(LengthAt, Digits).toInt(&lengthIsNumber);
    return startIsNumber && lengthIsNumber && start + length <= body.size() - PrefixLength;
}

} // namespace

void TranslationCheck::take(Recordset& row) {
    ++m_verses;
    VerseAddress address;
    const bool hasNumbers = attempt([&] {
        address = {
            toInteger(row.Fields(1).Value()), toInteger(row.Fields(2).Value()),
            toInteger(row.Fields(3).Value())};
    });
    if (!hasNumbers) {
        m_report.faultAt(
            u"rows without book, chapter and verse as numbers"_s, u"ID "_s + textOf(row.Fields(0)));
        return;
    }
    const QString name = verseName(address);
    checkPlace(address, name);
    checkBody(textOf(row.Fields(4)), name);
    if (!textOf(row.Fields(5)).trimmed().isEmpty())
        ++m_notes;
    m_last = address;
}

void TranslationCheck::checkPlace(const VerseAddress& address, const QString& name) {
    const bool isKnownBook = address.book >= 1 && address.book <= int(books().size());
    if (!isKnownBook)
        m_report.faultAt(u"verses of no book from 1 to 66"_s, name);
    else if (address.chapter < 1 || address.verse < 1)
        m_report.faultAt(u"chapters or verses below 1"_s, name);
    else if (address.chapter > books()[address.book - 1].chapters)
        m_report.faultAt(u"chapters behind the book's last one, which no list reaches"_s, name);
    if (address == m_last)
        m_report.faultAt(u"verses that stand there twice"_s, name);
    m_books.insert(address.book);
    m_chapters.insert({address.book, address.chapter});
}

void TranslationCheck::checkBody(const QString& body, const QString& name) {
    if (body.trimmed().isEmpty()) {
        m_report.faultAt(u"verses without text"_s, name);
    } else if (body.startsWith(RedMark)) {
        ++m_redVerses;
        if (!redRunFits(body))
            m_report.faultAt(u"words in red beyond the verse"_s, name);
    }
}

void TranslationCheck::finish() const {
    m_report.hold(u"%1 verses of %2 books, %3 chapters"_s.arg(
        figure(m_verses), figure(qint64(m_books.size())), figure(qint64(m_chapters.size()))));
    m_report.hold(u"%1 verses with words in red"_s.arg(figure(m_redVerses)));
    m_report.hold(u"%1 notes"_s.arg(figure(m_notes)));
}
