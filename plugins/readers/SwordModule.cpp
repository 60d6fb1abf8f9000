#include "readers/SwordModule.h"

#include "basic/Error.h"
#include "readers/ModuleFiles.h"
#include "readers/SwordLibrary.h"

#include <QFile>
#include <optional>

#include <swmgr.h>
#include <swmodule.h>
#include <versekey.h>

using namespace Qt::StringLiterals;

namespace {

// A library of one module: the others of the folder are not opened.
class OneModule final : public sword::SWMgr {
public:
    OneModule(const QByteArray& folder, QByteArray name)
        : SWMgr(folder.constData(), false, nullptr, false, false)
        , m_name(std::move(name)) {
        load();
    }

    sword::SWModule* module() { return getModule(m_name.constData()); }

protected:
    sword::SWModule*
    createModule(const char* name, const char* driver, sword::ConfigEntMap& section) override {
        return m_name == name ? SWMgr::createModule(name, driver, section) : nullptr;
    }

private:
    QByteArray m_name;
};

std::optional<ModuleEntry> findModule(const QString& folder, const QString& name) {
    for (ModuleEntry& module : modulesIn(folder)) {
        if (module.name == name)
            return std::move(module);
    }
    return std::nullopt;
}

// Leaves the key on the last place.
ModulePlaces placesOf(sword::VerseKey& key) {
    key.setPosition(sword::BOTTOM);
    const long last = key.getTestamentIndex();
    return {key.getIndex() - last + 1, last + 1};
}

} // namespace

class SwordModule::State {
public:
    // The module uses the key until the library is gone.
    std::unique_ptr<sword::VerseKey> key;
    std::unique_ptr<OneModule> library;
    sword::SWModule* module = nullptr;
    bool started = false;
    long lastIndex = 1;
};

std::unique_ptr<SwordModule> SwordModule::open(const QString& folder, const QString& name) {
    const std::optional<ModuleEntry> entry = findModule(folder, name);
    if (!entry)
        return nullptr;
    checkModuleFiles(*entry);
    isolateSwordLibrary();
    auto state = std::make_unique<State>();
    state->library = std::make_unique<OneModule>(QFile::encodeName(folder), name.toUtf8());
    state->module = state->library->module();
    if (!state->module)
        return nullptr;
    std::unique_ptr<sword::SWKey> key(state->module->createKey());
    if (!dynamic_cast<sword::VerseKey*>(key.get()))
        throw Error(Error::NotADatabase, u"The module %1 is not kept by verses."_s.arg(name));
    state->key.reset(static_cast<sword::VerseKey*>(key.release()));
    state->key->setIntros(false);
    state->key->setPersist(true);
    state->module->setKey(state->key.get());
    checkModuleLength(*entry, placesOf(*state->key));
    state->lastIndex = std::max(state->key->getIndex(), 1L);
    return std::unique_ptr<SwordModule>(new SwordModule(std::move(state)));
}

SwordModule::SwordModule(std::unique_ptr<State> state)
    : m_state(std::move(state)) {}

SwordModule::~SwordModule() = default;

QString SwordModule::description(const char* entry) const {
    return QString::fromUtf8(m_state->module->getConfigEntry(entry));
}

bool SwordModule::next() {
    if (m_state->started)
        m_state->key->increment();
    else
        m_state->key->setPosition(sword::TOP);
    m_state->started = true;
    return m_state->key->popError() == 0;
}

QString SwordModule::book() const {
    return QString::fromUtf8(m_state->key->getOSISBookName());
}

int SwordModule::chapter() const {
    return m_state->key->getChapter();
}

int SwordModule::verse() const {
    return m_state->key->getVerse();
}

QString SwordModule::entry() const {
    const sword::SWBuf& raw = m_state->module->getRawEntryBuf();
    const QByteArrayView bytes(raw.c_str(), static_cast<qsizetype>(raw.length()));
    return m_state->module->isUnicode() ? QString::fromUtf8(bytes) : QString::fromLatin1(bytes);
}

double SwordModule::fraction() const {
    return double(m_state->key->getIndex()) / double(m_state->lastIndex);
}
