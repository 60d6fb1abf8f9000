// The description of a SWORD module, as its file in mods.d gives it.
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <optional>

class ModuleConf {
public:
    // The description of the module `name` in `folder` (the one that holds mods.d); nothing where
    // the folder has no such module.
    static std::optional<ModuleConf> find(const QString& folder, const QString& name);

    // An entry such as "ModDrv"; empty if the description does not have it.
    QString entry(const char* name) const { return QString::fromUtf8(m_entries.value(name)); }

    // The folder and, for a dictionary, the head of the names of the module's own files.
    QString dataPath() const;

    // Where a work is from, for its data file.
    QString origin() const;

private:
    QString m_folder;
    QString m_name;
    QMap<QByteArray, QByteArray> m_entries;
};
