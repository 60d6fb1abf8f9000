#include "readers/SwordComments.h"

#include "basic/Error.h"
#include "readers/CommentFiles.h"
#include "readers/ModuleConf.h"
#include "readers/SwordLibrary.h"

#include <QFile>
#include <QSet>
#include <map>

#include <versekey.h>
#include <zcom.h>
#include <zipcomprs.h>
#include <zverse4.h> // zcom4.h does not include what it needs

#include <zcom4.h>

using namespace Qt::StringLiterals;

namespace {

// How much of the text goes into one block: the library's number for it, and the letter of the
// files' names.
struct Blocks {
    int number;
    QChar letter;
};

Blocks blocksOf(const ModuleConf& conf) {
    static const std::map<QString, Blocks> known{
        {u"BOOK"_s, {4, u'b'}},
        {u"CHAPTER"_s, {3, u'c'}},
        {u"VERSE"_s, {2, u'v'}},
    };
    const auto found = known.find(conf.entry("BlockType").toUpper());
    return found == known.end() ? known.at(u"CHAPTER"_s) : found->second;
}

// How many places the index of each testament has, those of introductions included.
struct Places {
    long oldTestament;
    long newTestament;
};

Places placesIn(sword::VerseKey& key) {
    key.setPosition(sword::BOTTOM);
    const long last = key.getTestamentIndex();
    return {key.getIndex() - last + 1, last + 1};
}

template <class Driver>
std::unique_ptr<sword::SWModule> openWith(const ModuleConf& conf, const Blocks& blocks) {
    return std::make_unique<Driver>(
        QFile::encodeName(conf.dataPath()).constData(), nullptr, nullptr, blocks.number,
        new sword::ZipCompress, nullptr, sword::ENC_UTF8, sword::DIRECTION_LTR, sword::FMT_OSIS);
}

} // namespace

class SwordComments::State {
public:
    ModuleConf conf;
    sword::VerseKey key; // the module uses it
    std::unique_ptr<sword::SWModule> module;
    bool started = false;
    long lastIndex = 1;
    QString bookId; // of the book that is being read
    const Book* book = nullptr;
    QSet<QByteArray> seen; // its entries
};

std::unique_ptr<SwordComments> SwordComments::open(const QString& folder, const QString& name) {
    std::optional<ModuleConf> conf = ModuleConf::find(folder, name);
    if (!conf)
        return nullptr;
    const QString driver = conf->entry("ModDrv");
    if ((driver != "zCom"_L1 && driver != "zCom4"_L1) || conf->entry("CompressType") != "ZIP"_L1
        || conf->entry("SourceType") != "OSIS"_L1)
        throw Error(
            Error::NotADatabase,
            u"The module %1 is not a compressed commentary in OSIS mark-up."_s.arg(name));
    auto state = std::make_unique<State>();
    state->key.setIntros(true);
    state->key.setPersist(true);
    const Blocks blocks = blocksOf(*conf);
    const Places places = placesIn(state->key);
    const CommentLayout layout =
        layoutOfComments(conf->dataPath(), blocks.letter, places.oldTestament, places.newTestament);
    state->module = layout == CommentLayout::ShortEntries ? openWith<sword::zCom>(*conf, blocks)
                                                          : openWith<sword::zCom4>(*conf, blocks);
    state->module->setKey(state->key);
    state->key.setPosition(sword::BOTTOM);
    state->lastIndex = std::max(state->key.getIndex(), 1L);
    state->conf = std::move(*conf);
    return std::unique_ptr<SwordComments>(new SwordComments(std::move(state)));
}

SwordComments::SwordComments(std::unique_ptr<State> state)
    : m_state(std::move(state)) {}

SwordComments::~SwordComments() = default;

std::optional<CommentEntry> SwordComments::next() {
    State& state = *m_state;
    for (;;) {
        if (state.started)
            state.key.increment();
        else
            state.key.setPosition(sword::TOP);
        state.started = true;
        if (state.key.popError() != 0)
            return std::nullopt;
        if (state.key.getBook() < 1) // the introduction of a testament: the library names no book
            continue;
        if (const QString id = QString::fromUtf8(state.key.getOSISBookName()); id != state.bookId) {
            state.bookId = id;
            state.book = findBook(id);
            state.seen.clear();
        }
        const sword::SWBuf& raw = state.module->getRawEntryBuf();
        const QByteArray text(raw.c_str(), static_cast<qsizetype>(raw.length()));
        if (!state.book || text.isEmpty() || state.seen.contains(text))
            continue;
        state.seen.insert(text);
        return CommentEntry{state.book, state.key.getChapter(), QString::fromUtf8(text)};
    }
}

double SwordComments::fraction() const {
    return double(m_state->key.getIndex()) / double(m_state->lastIndex);
}

SourceInfo SwordComments::info() const {
    const ModuleConf& conf = m_state->conf;
    return {conf.entry("Description"), conf.origin(), conf.entry("DistributionLicense")};
}
