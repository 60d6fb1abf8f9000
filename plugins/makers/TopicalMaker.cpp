#include "makers/TopicalMaker.h"

#include "Progress.h"
#include "makers/Headwords.h"
#include "makers/InfoRow.h"
#include "store/DataFile.h"
#include "text/TopicArticle.h"

using namespace Qt::StringLiterals;

namespace {

// The window that shows this file bears the name of another work.
QString aboutThisWork(const SourceInfo& info) {
    return u"The articles here are those of %1 (%2, %3). Easton's own text is not among the works "
           u"that this file could be made from.\r\nBooks are shortened: Ge for Genesis, Ex for "
           u"Exodus, Mt for Matthew. A headword in capitals behind \"See\" can be looked up in its "
           u"turn."_s.arg(info.title, info.source, info.licence);
}

} // namespace

MadeFile TopicalMaker::make(const Order& order, Progress& progress) {
    Headwords<QString> articles;
    while (const std::optional<DictionaryEntry> entry = m_source->next()) {
        QString& article = articles[entry->key];
        if (!article.isEmpty())
            article.append(u"\r\n\r\n"_s);
        article.append(readTopicArticle(entry->key, entry->text));
        progress.advance(m_source->fraction());
    }
    const SourceInfo info = m_source->info();
    articles.emplace(u"About this work"_s, aboutThisWork(info));
    DataFileWriter writer(order.path);
    writer.execute("CREATE TABLE Easton (ID INTEGER PRIMARY KEY, name TEXT, article TEXT)");
    qlonglong id = 0;
    for (const auto& [headword, article] : articles)
        writer.insert(u"Easton"_s, {++id, headword, article});
    writeInfo(writer, info);
    writer.finish();
    return {id, m_source->remarks()};
}
