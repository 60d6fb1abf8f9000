#include "makers/WordsMaker.h"

#include "Progress.h"
#include "makers/Headwords.h"
#include "makers/InfoRow.h"
#include "readers/DataLines.h"
#include "store/DataFile.h"
#include "text/Vocabulary.h"
#include "text/WordArticle.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double ReadingPart = 0.5; // of the work: the translation

using Articles = Headwords<WordArticle>;

// Parts of speech and text of `article` behind what is known of the word.
void join(WordArticle& known, const WordArticle& article) {
    for (const QString& part : article.parts) {
        if (!known.parts.contains(part))
            known.parts.append(part);
    }
    if (!known.text.isEmpty())
        known.text.append(u"\r\n\r\n"_s);
    known.text.append(article.text);
}

Articles readAdditions(const QString& path) {
    Articles articles;
    DataLines lines(path, 3);
    while (const std::optional<QStringList> fields = lines.next())
        join(articles[fields->at(0)], {fields->at(1).split(u", "_s), fields->at(2)});
    return articles;
}

QString headword(const QByteArray& word, bool isName) {
    QString headword = QString::fromLatin1(word);
    if (isName)
        headword[0] = headword[0].toUpper();
    return headword;
}

} // namespace

WordsMaker::WordsMaker(
    std::unique_ptr<WordNet> dictionary, std::unique_ptr<VerseSource> text, QString additions)
    : m_dictionary(std::move(dictionary))
    , m_text(std::move(text))
    , m_additions(std::move(additions)) {}

Vocabulary WordsMaker::readText(Progress& progress) {
    Vocabulary vocabulary;
    while (const std::optional<Verse> verse = m_text->next()) {
        vocabulary.add(verse->body); // the red-letter prefix has no letter
        progress.advance(m_text->fraction() * ReadingPart);
    }
    return vocabulary;
}

MadeFile WordsMaker::make(const Order& order, Progress& progress) {
    Articles articles = readAdditions(m_additions);
    const Vocabulary vocabulary = readText(progress);
    QSet<QByteArray> candidates;
    for (const auto& [word, seen] : vocabulary.words())
        candidates.unite(WordArticles::candidates(*m_dictionary, word));
    m_dictionary->find(candidates);
    WordArticles dictionary(*m_dictionary);
    for (const auto& [word, seen] : vocabulary.words()) {
        progress.advance(ReadingPart);
        const WordArticle article = dictionary.article(word, seen);
        if (!article.text.isEmpty())
            join(articles[headword(word, !seen.isPlain())], article);
    }
    const QString notice = u"WordNet licence\r\n\r\n"_s + m_dictionary->licence();
    articles.emplace(u"About this dictionary"_s, WordArticle{{u"notice"_s}, notice});
    DataFileWriter writer(order.path);
    writer.execute(
        "CREATE TABLE tblDictionary (ID INTEGER PRIMARY KEY, word TEXT, definition TEXT, "
        "partofspeech TEXT)");
    qlonglong id = 0;
    for (const auto& [word, article] : articles)
        writer.insert(u"tblDictionary"_s, {++id, word, article.text, article.parts.join(u", "_s)});
    writeInfo(
        writer, {u"Words of the Bible"_s, u"WordNet 3.0, words of %1"_s.arg(m_text->info().source),
                 notice});
    writer.finish();
    return {id, {}};
}
