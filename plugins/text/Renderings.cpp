#include "text/Renderings.h"

#include "text/Fragment.h"

#include <QRegularExpression>
#include <QSet>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Calls back with the numbers and the text of each tagged word.
template <class Found>
class TagVisitor final : public FragmentVisitor {
public:
    explicit TagVisitor(Found found)
        : m_found(found) {}

    void startElement(QStringView name, const QXmlStreamAttributes& attributes) override {
        m_notes += name == "note"_L1;
        if (name != "w"_L1)
            return;
        m_text.clear();
        m_lemma = attributes.value("lemma"_L1).toString();
    }
    void endElement(QStringView name) override {
        m_notes -= name == "note"_L1;
        if (name == "w"_L1 && m_notes == 0)
            m_found(m_lemma, m_text);
    }
    void characters(QStringView text) override {
        if (m_notes == 0)
            m_text.append(text);
    }

private:
    Found m_found;
    QString m_lemma;
    QString m_text;
    int m_notes = 0;
};

} // namespace

void Renderings::add(const QString& markup) {
    static const QRegularExpression greekNumber(u"\\bG(\\d+)"_s);
    TagVisitor visitor([this](const QString& lemma, const QString& text) {
        const QString rendering = wordsIn(text).join(u' ');
        auto match = greekNumber.globalMatch(lemma);
        while (match.hasNext() && !rendering.isEmpty())
            ++m_counts[match.next().captured(1).toInt()][rendering];
    });
    visitFragment(markup, visitor);
}

int Renderings::countOf(int number, const QString& usage) const {
    const QStringList list = wordsIn(usage);
    const QSet<QString> words(list.begin(), list.end());
    int count = 0;
    const QHash<QString, int> renderings = m_counts.value(number);
    for (auto each = renderings.begin(); each != renderings.end(); ++each) {
        const QStringList parts = each.key().split(u' ');
        if (std::ranges::any_of(parts, [&](const QString& word) { return words.contains(word); }))
            count += each.value();
    }
    return count;
}

QStringList wordsIn(QStringView text) {
    QStringList words;
    QString word;
    for (qsizetype at = 0; at <= text.size(); ++at) {
        const QChar next = at < text.size() ? text[at] : QChar();
        const bool isApostrophe = next == u'\'' || next == u'\u2019';
        if (next.isLetter())
            word.append(next.toLower());
        else if (isApostrophe && !word.isEmpty() && at + 1 < text.size() && text[at + 1].isLetter())
            word.append(u'\'');
        else if (!word.isEmpty())
            words.append(std::exchange(word, {}));
    }
    return words;
}
