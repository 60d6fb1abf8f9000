// Writes a small dictionary in the files of WordNet, so that no test needs the installed one.
#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

struct SmallWordNet {
    struct Sense {
        QByteArray part; // "noun", "verb", "adj" or "adv"
        QByteArray word; // as it is spelt
        QByteArray meaning;
        QByteArray category = "03"; // "18" for a person
    };

    std::vector<Sense> senses;                                // those of a word in their order
    std::vector<std::pair<QByteArray, QByteArray>> irregular; // verbs: "went", "go"

    void writeTo(const QString& folder) const;
};
