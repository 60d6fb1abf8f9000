#include "settings/SettingsStore.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QSettings>
#include <QStandardPaths>
#include <map>
#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

QString settingText(const QVariant& value) {
    // An unquoted comma in a file edited by hand reads as a list.
    return value.metaType() == QMetaType::fromType<QStringList>()
               ? value.toStringList().join(u", "_s)
               : value.toString();
}

// The settings of one application.
class ApplicationSettings {
public:
    explicit ApplicationSettings(const QString& fileName)
        : m_file(fileName, QSettings::IniFormat) {
        if (m_file.status() == QSettings::FormatError)
            keepDamagedFile(fileName);
        const QStringList keys = m_file.allKeys();
        for (const QString& key : keys)
            m_storedKeys.insert(key.toCaseFolded(), key);
    }

    QString read(const QString& key, const QString& standard) {
        const std::optional<QString> stored = storedValue(key);
        m_lastSeen.insert(key.toCaseFolded(), stored);
        return stored.value_or(standard);
    }

    void write(const QString& key, const QString& value) {
        const QString folded = key.toCaseFolded();
        const auto seen = m_lastSeen.constFind(folded);
        if ((seen != m_lastSeen.constEnd() ? *seen : storedValue(key)) != value)
            m_file.setValue(storedKey(key), value);
        m_lastSeen.insert(folded, value);
    }

    void flush() { m_file.sync(); }

private:
    static void keepDamagedFile(const QString& fileName) {
        QString copy = fileName + u".damaged"_s;
        for (int number = 2; QFile::exists(copy); ++number)
            copy = fileName + u".damaged-"_s + QString::number(number);
        QFile::copy(fileName, copy);
    }

    // The spelling under which a key is in the file; a new key is stored as it is spelled first.
    QString storedKey(const QString& key) {
        auto stored = m_storedKeys.find(key.toCaseFolded());
        if (stored == m_storedKeys.end())
            stored = m_storedKeys.insert(key.toCaseFolded(), key);
        return *stored;
    }

    std::optional<QString> storedValue(const QString& key) {
        const auto stored = m_storedKeys.constFind(key.toCaseFolded());
        if (stored == m_storedKeys.constEnd() || !m_file.contains(*stored))
            return std::nullopt;
        return settingText(m_file.value(*stored));
    }

    QSettings m_file;
    QHash<QString, QString> m_storedKeys;
    QHash<QString, std::optional<QString>> m_lastSeen;
};

class SettingsStore {
public:
    ApplicationSettings& application(const QString& name) {
        std::unique_ptr<ApplicationSettings>& settings = m_applications[name];
        if (!settings)
            settings = std::make_unique<ApplicationSettings>(folder() + u'/' + name + u".ini"_s);
        return *settings;
    }

    void flush() {
        for (const auto& [name, settings] : m_applications)
            settings->flush();
    }

    void setFolder(const QString& folder) {
        m_applications.clear();
        m_folder = folder;
    }

private:
    QString folder() const {
        if (!m_folder.isEmpty())
            return m_folder;
        return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
               + u"/lumenvia"_s;
    }

    std::map<QString, std::unique_ptr<ApplicationSettings>> m_applications;
    QString m_folder;
};

SettingsStore& store() {
    static SettingsStore instance;
    return instance;
}

QString pathOf(const QString& section, const QString& key) {
    return section + u'/' + key;
}

} // namespace

QString GetSetting(
    const QString& application, const QString& section, const QString& key,
    const QString& standard) {
    return store().application(application).read(pathOf(section, key), standard);
}

void SaveSetting(
    const QString& application, const QString& section, const QString& key, const QString& value) {
    store().application(application).write(pathOf(section, key), value);
}

void flushSettings() {
    store().flush();
}

void setSettingsFolder(const QString& folder) {
    store().setFolder(folder);
}
