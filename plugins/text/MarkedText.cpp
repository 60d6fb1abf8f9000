#include "text/MarkedText.h"

namespace {

// A character as the page takes it; the null character for one that it does not take. Control
// characters would be read as the red-letter marker, zero-width ones would hide words from a
// search.
QChar pageCharacter(QChar character) {
    switch (character.unicode()) {
    case u'{':
        return u'[';
    case u'}':
        return u']';
    case u'\\':
        return u'/';
    case 0x2018:
    case 0x2019:
    case 0x201B:
    case 0x02BC:
        return u'\'';
    case 0x00B6: // pilcrow
    case 0x00AD: // soft hyphen
    case 0x200B: // zero-width blank
    case 0xFEFF: // byte-order mark
        return {};
    default:
        return character.category() == QChar::Other_Control ? QChar() : character;
    }
}

bool isOpening(QChar character) {
    return character.category() == QChar::Punctuation_Open
           || character.category() == QChar::Punctuation_InitialQuote || character == u'\u00A1'
           || character == u'\u00BF';
}

// Whether two characters that a removal has made neighbours belong to different words.
bool needsBlankBetween(QChar before, QChar after) {
    return !isOpening(before) && before.category() != QChar::Punctuation_Dash
           && (after.isLetterOrNumber() || isOpening(after));
}

} // namespace

void MarkedText::append(QStringView text, bool red) {
    for (const QChar character : text) {
        if (character.isSpace())
            m_blankDue = true;
        else if (const QChar kept = pageCharacter(character); !kept.isNull())
            appendVisible(kept, red);
    }
}

void MarkedText::appendVisible(QChar character, bool red) {
    if (m_joint && !m_text.isEmpty())
        m_blankDue = m_blankDue || needsBlankBetween(m_text.back(), character);
    if (m_blankDue && !m_text.isEmpty()) {
        m_text.append(u' ');
        m_red.append(red && m_red.back());
    }
    m_text.append(character);
    m_red.append(red);
    m_blankDue = false;
    m_joint = false;
}

void MarkedText::separate() {
    m_blankDue = true;
}

void MarkedText::markJoint() {
    m_joint = true;
}

void MarkedText::insertBlank(qsizetype position) {
    m_text.insert(position, u' ');
    m_red.insert(position, m_red[position - 1] && m_red[position]);
}

void MarkedText::remove(qsizetype position, qsizetype length) {
    m_text.remove(position, length);
    m_red.remove(position, length);
}

bool MarkedText::endsInWord() const {
    return !m_blankDue && !m_text.isEmpty() && m_text.back().isLetterOrNumber();
}

QList<RedRun> MarkedText::redRuns() const {
    QList<RedRun> runs;
    for (qsizetype at = m_red.indexOf('\1'); at >= 0;) {
        qsizetype end = m_red.indexOf('\0', at);
        if (end < 0)
            end = m_red.size();
        runs.append({at, end - at});
        at = m_red.indexOf('\1', end);
    }
    return runs;
}
