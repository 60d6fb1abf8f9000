#include "Works.h"

#include "basic/Error.h"
#include "makers/TopicsMaker.h"
#include "makers/TranslationMaker.h"
#include "readers/SwordVerses.h"
#include "text/SpanishText.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

std::unique_ptr<SwordModule> openModule(const Work& work, const QStringList& moduleFolders) {
    for (const QString& folder : moduleFolders) {
        if (auto module = SwordModule::open(folder, work.module))
            return module;
    }
    throw Error(
        Error::FileNotFound,
        u"The module %1 is not installed. Install the package %2, or name the folder of the "
        u"modules with --from. (Looked in %3.)"_s.arg(
            work.module, work.package, moduleFolders.join(u", "_s)));
}

std::unique_ptr<Maker>
makeTranslation(const Work& work, const QStringList& moduleFolders, const TextRules& rules = {}) {
    auto module = openModule(work, moduleFolders);
    const QString origin = u"SWORD module %1 %2"_s.arg(work.module, module->description("Version"));
    return std::make_unique<TranslationMaker>(
        std::make_unique<SwordVerses>(std::move(module), origin, rules));
}

std::unique_ptr<Maker> makeKingJames(const Work& work, const QStringList& moduleFolders) {
    return makeTranslation(work, moduleFolders);
}

std::unique_ptr<Maker> makeSpanish(const Work& work, const QStringList& moduleFolders) {
    return makeTranslation(work, moduleFolders, {lacksSpanishBlank, correctSpanishText});
}

std::unique_ptr<Maker> makeTopics(const Work&, const QStringList&) {
    return std::make_unique<TopicsMaker>();
}

constexpr std::array Table{
    Work{
        "kjv"_L1, "KJV.mdb"_L1, "King James Version"_L1, "sword-text-kjv"_L1, "engKJV2006eb"_L1,
        "public domain"_L1, false, makeKingJames},
    Work{
        "spanish"_L1, "Spanish.mdb"_L1, "Reina Valera 1909"_L1, "sword-text-sparv"_L1,
        "spaRV1909eb"_L1, "public domain"_L1, false, makeSpanish},
    Work{
        "topics"_L1, "topics.mdb"_L1, "Topics, empty"_L1, ""_L1, ""_L1, "the user's own"_L1, true,
        makeTopics},
};

} // namespace

std::span<const Work> works() {
    return Table;
}

const Work* findWork(QStringView name) {
    for (const Work& work : Table) {
        if (name.compare(work.name, Qt::CaseInsensitive) == 0)
            return &work;
    }
    return nullptr;
}
