// Writes a small SWORD module, so that no test needs an installed one.
#pragma once

#include <QByteArray>
#include <QString>
#include <utility>
#include <vector>

struct SmallModule {
    QString name = QStringLiteral("engKJV2006eb");
    QByteArray markup = "OSIS";
    QByteArray verseScheme = "KJV";
    QByteArray encoding = "UTF-8";
    std::vector<std::pair<QByteArray, QByteArray>> entries; // "Gen 1:1" and its mark-up

    // Into a folder of modules; several may share one.
    void writeTo(const QString& folder) const;
};
