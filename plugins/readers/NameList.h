// Names for a sentence of the report. A damaged text may give thousands, so only the first ones are
// kept.
#pragma once

#include <QStringList>

class NameList {
public:
    void add(const QString& name) {
        if (m_names.size() < MostNames)
            m_names.append(name);
        else
            m_hasMore = true;
    }

    void addOnce(const QString& name) {
        if (!m_names.contains(name))
            add(name);
    }

    bool isEmpty() const { return m_names.isEmpty(); }

    QString text() const {
        const QString names = m_names.join(QStringLiteral(", "));
        return m_hasMore ? names + QStringLiteral(" and more") : names;
    }

    // The sentence into a report, in front of the names; nothing without a name.
    void report(QStringList& remarks, const QString& sentence) const {
        if (!isEmpty())
            remarks.append(sentence + QStringLiteral(": ") + text());
    }

private:
    static constexpr qsizetype MostNames = 50;

    QStringList m_names;
    bool m_hasMore = false;
};
