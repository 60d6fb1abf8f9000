#include "text/TopicArticle.h"

#include "text/Fragment.h"
#include "text/PlainLines.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

class ArticleVisitor final : public FragmentVisitor {
public:
    void startElement(QStringView name, const QXmlStreamAttributes&) override {
        if (name == "lb"_L1 || name == "item"_L1 || name == "list"_L1)
            m_lines.endLine();
        if (name == "item"_L1)
            m_lines.append(u"- ");
    }

    void endElement(QStringView name) override {
        if (name == "item"_L1 || name == "list"_L1)
            m_lines.endLine();
    }

    // References follow each other without a blank: "Jos 21:4" ",10".
    void characters(QStringView text) override {
        static const QRegularExpression apostrophe(u"(?<=\\pL)' (?=s\\b)"_s);
        static const QRegularExpression residue(u"(?:[\u2192=]|&gt;)\\s*"_s);
        static const QRegularExpression comma(u"^,(?=\\S|$)"_s);
        QString clean = text.toString();
        clean.replace(apostrophe, u"'"_s).remove(residue).replace(comma, u", "_s);
        m_lines.append(clean);
    }

    QString takeText() { return m_lines.takeText(); }

private:
    PlainLines m_lines;
};

} // namespace

QString readTopicArticle(const QString& headword, const QString& markup) {
    ArticleVisitor visitor;
    visitFragment(markup, visitor);
    QString text = visitor.takeText();
    if (text.startsWith(headword) && !text.startsWith(headword + u"\r\n"_s)
        && text.size() > headword.size() && text[headword.size()].isLetter())
        text.remove(0, headword.size());
    return text;
}
