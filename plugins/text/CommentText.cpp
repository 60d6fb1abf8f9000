#include "text/CommentText.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

void CommentText::startElement(QStringView name, const QXmlStreamAttributes& attributes) {
    const QStringView type = attributes.value("type"_L1);
    const bool isHeading = name == "hi"_L1 && type == "bold"_L1;
    m_inHeading = m_inHeading || isHeading;
    if (isHeading || name == "title"_L1)
        m_lines.endParagraph();
    else if (name == "div"_L1 && (type == "x-p"_L1 || type == "introduction"_L1))
        m_lines.endLine();
    else if (name == "cell"_L1)
        m_lines.separate();
}

void CommentText::endElement(QStringView name) {
    if (name == "title"_L1 || name == "row"_L1 || (name == "hi"_L1 && m_inHeading))
        m_lines.endLine();
    if (name == "hi"_L1)
        m_inHeading = false;
}

// Numbers of verses are written "#(2)"; some chapters open with a dash.
void CommentText::characters(QStringView text) {
    static const QRegularExpression verses(u"#\\(([^()]*)\\)"_s);
    static const QRegularExpression dash(u"^\\s*--(?=\\p{Lu})"_s);
    m_lines.append(text.toString().replace(verses, u"\\1"_s).remove(dash));
}
