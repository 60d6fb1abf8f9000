// Writes a small SWORD dictionary (driver zLD), so that no test needs an installed one.
#pragma once

#include <QByteArray>
#include <QString>
#include <utility>
#include <vector>

struct SmallDictionary {
    QString name = QStringLiteral("Nave");
    QByteArray driver = "zLD";
    std::vector<std::pair<QByteArray, QByteArray>> entries; // a key and its mark-up

    // Into a folder of modules; several may share one.
    void writeTo(const QString& folder) const;

    // The path of one of its files, by its ending: "idx", "dat", "zdx" or "zdt".
    QString file(const QString& folder, const QString& ending) const;
};
