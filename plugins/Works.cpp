#include "Works.h"

#include "basic/Error.h"
#include "makers/CommentMaker.h"
#include "makers/LexiconMaker.h"
#include "makers/NamesMaker.h"
#include "makers/TimeLineMaker.h"
#include "makers/TopicalMaker.h"
#include "makers/TopicsMaker.h"
#include "makers/TranslationMaker.h"
#include "makers/WordsMaker.h"
#include "readers/SwordVerses.h"
#include "text/SpanishText.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Source {
    QLatin1String module;
    QLatin1String package;
};

constexpr Source KingJames{"engKJV2006eb"_L1, "sword-text-kjv"_L1};
constexpr Source ReinaValera{"spaRV1909eb"_L1, "sword-text-sparv"_L1};
constexpr Source Henry{"MHCC"_L1, "sword-comm-mhcc"_L1};
constexpr Source Nave{"Nave"_L1, "sword-dict-naves"_L1};
constexpr Source StrongsGreek{"StrongsGreek"_L1, "sword-dict-strongs-greek"_L1};
constexpr Source StrongsHebrew{"StrongsHebrew"_L1, "sword-dict-strongs-hebrew"_L1};

// The module of a source, as a SwordModule, SwordEntries or SwordComments.
template <class Module>
std::unique_ptr<Module> openModule(const Source& source, const QStringList& moduleFolders) {
    for (const QString& folder : moduleFolders) {
        if (auto module = Module::open(folder, source.module))
            return module;
    }
    throw Error(
        Error::FileNotFound,
        u"The module %1 is not installed. Install the package %2, or name the folder of the "
        u"modules with --from. (Looked in %3.)"_s.arg(
            source.module, source.package, moduleFolders.join(u", "_s)));
}

std::unique_ptr<VerseSource>
openVerses(const Source& source, const QStringList& moduleFolders, const TextRules& rules = {}) {
    auto module = openModule<SwordModule>(source, moduleFolders);
    const QString origin =
        u"SWORD module %1 %2"_s.arg(source.module, module->description("Version"));
    return std::make_unique<SwordVerses>(std::move(module), origin, rules);
}

// WordNet's own variable names its folder where it is not the system's.
QString wordNetFolder() {
    return qEnvironmentVariable("WNSEARCHDIR", u"/usr/share/wordnet"_s);
}

std::unique_ptr<Maker> makeKingJames(const QStringList& folders) {
    return std::make_unique<TranslationMaker>(openVerses(KingJames, folders));
}

std::unique_ptr<Maker> makeSpanish(const QStringList& folders) {
    return std::make_unique<TranslationMaker>(
        openVerses(ReinaValera, folders, {lacksSpanishBlank, correctSpanishText}));
}

std::unique_ptr<Maker> makeComment(const QStringList& folders) {
    return std::make_unique<CommentMaker>(openModule<SwordComments>(Henry, folders));
}

std::unique_ptr<Maker> makeTopical(const QStringList& folders) {
    return std::make_unique<TopicalMaker>(openModule<SwordEntries>(Nave, folders));
}

std::unique_ptr<Maker> makeLexicon(const QStringList& folders) {
    auto entries = openModule<SwordEntries>(StrongsGreek, folders);
    return std::make_unique<LexiconMaker>(
        std::move(entries), openModule<SwordModule>(KingJames, folders));
}

std::unique_ptr<Maker> makeNames(const QStringList& folders) {
    auto hebrew = openModule<SwordEntries>(StrongsHebrew, folders);
    return std::make_unique<NamesMaker>(
        std::move(hebrew), openModule<SwordEntries>(StrongsGreek, folders), u":/works/names.txt"_s);
}

std::unique_ptr<Maker> makeWords(const QStringList& folders) {
    auto dictionary = std::make_unique<WordNet>(wordNetFolder());
    return std::make_unique<WordsMaker>(
        std::move(dictionary), openVerses(KingJames, folders), u":/works/words.txt"_s);
}

std::unique_ptr<Maker> makeTimeLine(const QStringList&) {
    return std::make_unique<TimeLineMaker>(u":/works/time-bc.txt"_s, u":/works/time-ad.txt"_s);
}

std::unique_ptr<Maker> makeTopics(const QStringList&) {
    return std::make_unique<TopicsMaker>();
}

constexpr Work
ownTranslation(const QLatin1String& name, const QLatin1String& file, const QLatin1String& title) {
    return {name, file, title, "tblMain"_L1, ""_L1, ""_L1};
}

// clang-format off
constexpr std::array Table{
    ownTranslation("nasb"_L1, "nasb.mdb"_L1, "ASB"_L1),
    ownTranslation("4nav"_L1, "4NAV.mdb"_L1, "NAV"_L1),
    Work{"kjv"_L1, "KJV.mdb"_L1, "KJV - King James Version"_L1, "tblMain"_L1,
         KingJames.package, "public domain"_L1, false, makeKingJames},
    ownTranslation("rsv"_L1, "RSV.mdb"_L1, "RSV - Revised Standard Version"_L1),
    ownTranslation("mkjv"_L1, "mkjv.mdb"_L1, "MKJV - A Modern King James Version"_L1),
    ownTranslation("darby"_L1, "DARBY.mdb"_L1, "Darby's Modern Translation"_L1),
    ownTranslation("ylt"_L1, "YLT.mdb"_L1, "YLT - Young's Literal Translation"_L1),
    ownTranslation("latin"_L1, "latin.mdb"_L1, "Latin - Vulgate"_L1),
    Work{"spanish"_L1, "Spanish.mdb"_L1, "Espa\xF1ol - (Spanish RVA)"_L1, "tblMain"_L1,
         ReinaValera.package, "public domain"_L1, false, makeSpanish},
    ownTranslation("french"_L1, "French.mdb"_L1, "Fran\xE7" "ais (French LSG)"_L1),
    ownTranslation("german"_L1, "German.mdb"_L1, "Deutsch (German Elberfelder)"_L1),
    ownTranslation("dutchsvv"_L1, "Dutchsvv.mdb"_L1, "Hollands (Dutch SVV)"_L1),
    ownTranslation("dutchlei"_L1, "Dutchlei.mdb"_L1, "Hollands (Dutch LEI)"_L1),
    Work{"comment"_L1, "comment.mdb"_L1, "Matthew Henry's Concise Commentary"_L1, "tblComment"_L1,
         Henry.package, "public domain"_L1, false, makeComment},
    Work{"easton"_L1, "easton.mdb"_L1, "Nave's Topical Bible"_L1, "Easton"_L1,
         Nave.package, "public domain"_L1, false, makeTopical},
    Work{"greek"_L1, "greek.mdb"_L1, "Strong's Greek lexicon"_L1, "greek_lexicon"_L1,
         "sword-dict-strongs-greek, -text-kjv"_L1, "public domain"_L1, false, makeLexicon},
    Work{"names"_L1, "names.mdb"_L1, "Names and their meanings"_L1, "tblnames"_L1,
         "sword-dict-strongs-hebrew, -greek"_L1, "public domain"_L1, false, makeNames},
    Work{"diction"_L1, "diction.mdb"_L1, "Words of the Bible"_L1, "tblDictionary"_L1,
         "wordnet-base, sword-text-kjv"_L1, "WordNet licence"_L1, false, makeWords},
    Work{"time"_L1, "time.mdb"_L1, "Time line"_L1, "tblBC tblAD"_L1,
         ""_L1, "the project's own"_L1, false, makeTimeLine},
    Work{"topics"_L1, "topics.mdb"_L1, "Topics, empty"_L1, "tblTopicName"_L1,
         ""_L1, "the user's own"_L1, true, makeTopics},
};
// clang-format on

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
