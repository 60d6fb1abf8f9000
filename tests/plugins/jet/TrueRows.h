// Which rows a converted file may hold when bytes of its source were changed.
//
// Jet keeps no checksums. So a change within a row's own bytes, the slots that bound it or its long
// values can pass as another value of that row; a change within a table's definition can change any
// row of that table; in Jet 3, one of the code page any text. Nothing else may: every other row has
// to be there, once, as it was. A deleted row that has come back counts as a changed row too.
#pragma once

#include "plugins/jet/JetFixture.h"
#include "plugins/jet/Mutation.h"

#include <QHash>
#include <QStringList>

class TrueRows {
public:
    // Of the undamaged file, whose conversion stands at `path`.
    TrueRows(const JetFixture& fixture, const QStringList& tables, const QString& path);

    // What is wrong with the conversion at `path` of the changed file; empty if nothing is.
    QString fault(const QString& path, const QList<ChangedBytes>& changes) const;

    // Whether the conversion holds exactly the rows of the undamaged file.
    bool isUnchanged(const QString& path) const;

private:
    using Rows = QHash<QByteArray, int>; // how often each is there

    // The rows of each table whose bytes were changed.
    struct Hits {
        QHash<int, QSet<int>> rows;
        bool all = false;
        bool catalogue = false;
    };
    static Rows readRows(const QString& path, const QString& table);
    static qsizetype surplus(const Rows& rows, const Rows& allowed);
    Hits hits(const QList<ChangedBytes>& changes) const;

    QList<JetRegion> m_regions;
    bool m_isJet3;
    QStringList m_tables;
    QList<Rows> m_rows;
};
