#include "text/PlainLines.h"

#include <QRegularExpression>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// Sources leave blanks before marks, and marks behind words that they left out.
QString tidy(QString line) {
    static const QRegularExpression blankBeforeMark(u" +(?=[,;)])"_s);
    static const QRegularExpression doubledComma(u",{2,}"_s);
    return line.remove(blankBeforeMark).replace(doubledComma, u","_s);
}

} // namespace

void PlainLines::endLine() {
    const QString line = tidy(std::exchange(m_line, {}).text());
    if (line.isEmpty())
        return;
    if (m_paragraphDue && !m_lines.isEmpty())
        m_lines.append(QString());
    m_paragraphDue = false;
    m_lines.append(line);
}

void PlainLines::endParagraph() {
    endLine();
    m_paragraphDue = true;
}

QString PlainLines::takeText() {
    endLine();
    m_paragraphDue = false;
    return std::exchange(m_lines, {}).join(u"\r\n"_s);
}

QString cleanLine(QStringView text) {
    MarkedText line;
    line.append(text, false);
    return tidy(line.text());
}
