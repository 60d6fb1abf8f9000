// Writes a small SWORD commentary (driver zCom), so that no test needs an installed one.
#pragma once

#include <QByteArray>
#include <QString>
#include <utility>
#include <vector>

struct SmallCommentary {
    QByteArray declaredDriver = "zCom4"; // what the description says; the files are zCom's
    std::vector<std::pair<QByteArray, QByteArray>> entries; // "Gen 1:1" and its mark-up
    std::vector<std::pair<QByteArray, QByteArray>> links;   // a verse and the one it shares with

    // Into a folder of modules, as the module MHCC.
    void writeTo(const QString& folder) const;

    // The path of one of its files: "ot.bzv", "nt.bzz" and so on.
    static QString file(const QString& folder, const QString& name);
};
