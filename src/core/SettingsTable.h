// Which settings there are: the key of each, its default, and the global that holds it, whose type
// is its width.
#pragma once

#include <QList>
#include <QString>
#include <variant>

struct Setting {
    QString key; // as it is read; the store does not tell case apart
    QString standard;
    std::variant<QString*, quint8*, qint16*, float*, double*> global;
};

// In the order of reading.
const QList<Setting>& settingsTable();

// The setting of a key, in any case. Error::SubscriptOutOfRange if there is none.
const Setting& settingOf(const QString& key);
