#include "readers/ModuleConf.h"

#include "readers/SwordLibrary.h"

#include <QDir>
#include <QFile>

#include <swconfig.h>

using namespace Qt::StringLiterals;

std::optional<ModuleConf> ModuleConf::find(const QString& folder, const QString& name) {
    isolateSwordLibrary();
    const QDir descriptions(folder + u"/mods.d"_s);
    for (const QFileInfo& file : descriptions.entryInfoList({u"*.conf"_s}, QDir::Files)) {
        const sword::SWConfig conf(QFile::encodeName(file.filePath()).constData());
        const auto& sections = conf.getSections();
        const auto section = sections.find(name.toUtf8().constData());
        if (section == sections.end())
            continue;
        ModuleConf found;
        found.m_folder = folder;
        found.m_name = name;
        for (const auto& [entry, value] : section->second)
            found.m_entries.insert(entry.c_str(), value.c_str());
        return found;
    }
    return std::nullopt;
}

QString ModuleConf::dataPath() const {
    return QDir::cleanPath(QDir(m_folder).filePath(entry("DataPath")));
}

QString ModuleConf::origin() const {
    return u"SWORD module %1 %2"_s.arg(m_name, entry("Version"));
}
