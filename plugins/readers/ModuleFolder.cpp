#include "readers/ModuleFolder.h"

#include "basic/Error.h"
#include "readers/ModuleFiles.h"
#include "readers/SwordVerses.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int DeepestModule = 6; // folders below the one of the modules
constexpr auto LongestReading = 5min;

bool holdsModules(const QString& folder) {
    return QFileInfo(folder + u"/mods.d"_s).isDir();
}

// The folder of modules that a path belongs to; empty for none.
QString rootOf(const QString& path) {
    const QFileInfo info(path);
    QDir folder = info.isDir() ? QDir(info.absoluteFilePath()) : info.absoluteDir();
    for (int level = 0; level <= DeepestModule; ++level) {
        if (holdsModules(folder.path()))
            return folder.path();
        if (!folder.cdUp())
            break;
    }
    return {};
}

// The modules that a path may mean: the one whose description or folder it is, or the texts of the
// folder.
std::vector<ModuleEntry> modulesAt(const QString& path) {
    const QString wanted = QFileInfo(path).canonicalFilePath();
    const QString root = rootOf(path);
    std::vector<ModuleEntry> modules =
        root.isEmpty() ? std::vector<ModuleEntry>() : modulesIn(root);
    const bool isRoot = holdsModules(path);
    std::erase_if(modules, [&wanted, isRoot](const ModuleEntry& module) {
        return !isRoot && wanted != QFileInfo(module.description).canonicalFilePath()
               && wanted != QFileInfo(module.dataFolder).canonicalFilePath();
    });
    if (modules.size() > 1)
        std::erase_if(modules, [](const ModuleEntry& module) { return !module.isText(); });
    return modules;
}

[[noreturn]] void askForOne(const QString& path, const std::vector<ModuleEntry>& modules) {
    QStringList names;
    for (const ModuleEntry& module : modules)
        names.append(u"%1 (%2)"_s.arg(module.name, module.description));
    throw Error(
        Error::NotADatabase,
        u"%1 holds several texts. Name the description of the one that is meant: %2"_s.arg(
            path, names.join(u", "_s)));
}

} // namespace

bool isModulePath(const QString& path) {
    return holdsModules(path) || !modulesAt(path).empty();
}

std::unique_ptr<VerseSource> openModulePath(const QString& path) {
    const std::vector<ModuleEntry> modules = modulesAt(path);
    if (modules.empty())
        throw Error(Error::NotADatabase, u"%1 holds no text of a Bible."_s.arg(path));
    if (modules.size() > 1)
        askForOne(path, modules);
    auto module = SwordModule::open(rootOf(path), modules.front().name);
    if (!module)
        throw Error(
            Error::NotADatabase, u"The module %1 cannot be opened."_s.arg(modules.front().name));
    const QString origin =
        u"SWORD module %1 %2"_s.arg(modules.front().name, module->description("Version"));
    return std::make_unique<TimedVerses>(
        std::make_unique<SwordVerses>(std::move(module), origin.trimmed(), TextRules()),
        LongestReading);
}

TimedVerses::TimedVerses(std::unique_ptr<VerseSource> source, std::chrono::milliseconds limit)
    : m_source(std::move(source))
    , m_limit(limit) {
    m_clock.start();
}

std::optional<Verse> TimedVerses::next() {
    if (m_clock.elapsed() > m_limit.count())
        throw Error(
            Error::NotADatabase,
            u"%1 takes too long to read; its description may name a wrong driver."_s.arg(
                m_source->info().source));
    return m_source->next();
}
