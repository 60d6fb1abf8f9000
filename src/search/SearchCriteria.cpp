#include "search/SearchCriteria.h"

#include "basic/Text.h"

using namespace Qt::StringLiterals;

namespace {

// The quotes are part of the text: a word with such a quote in it spoils the criteria.
QString quoted(const QString& pattern) {
    return u'"' + pattern + u'"';
}

} // namespace

QString anywherePattern(const QString& word) {
    return quoted(u'*' + word + u'*');
}

QString wholeWordPatterns(const QString& word, const QString& marks, const QString& between) {
    QString patterns = quoted(u"* "_s + word + u" *"_s);
    for (const QChar mark : marks)
        patterns += between + quoted(u"* "_s + word + mark + u'*');
    return patterns;
}

QString scopeStart(int testament, int book) {
    if (testament == 1)
        return u"book = 1"_s;
    if (testament == 2)
        return u"book = 40 and chapter = 1 and verse = 1"_s;
    if (book > 0)
        return u"book = "_s + Str(book) + u" and chapter = 1 and verse = 1"_s;
    return FirstVerseCriteria;
}
