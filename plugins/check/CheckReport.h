// What a check has found: what a file holds, and what is wrong with it.
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

class CheckReport {
public:
    void hold(const QString& fact) { m_facts.append(fact); }
    void fault(const QString& fault); // once, however often it is met

    // A fault of one place among many; the places of one kind of fault become one line, which names
    // the first ten of them.
    void faultAt(const QString& kind, const QString& place);

    const QStringList& facts() const { return m_facts; }
    QStringList faults() const;

private:
    struct Places {
        int count = 0;
        QStringList named;
    };

    QStringList m_facts;
    QStringList m_faults;
    QMap<QString, Places> m_places;
};

// "31,102": as figures stand in texts for people.
QString figure(qint64 number);
