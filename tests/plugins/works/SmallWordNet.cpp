#include "plugins/works/SmallWordNet.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>
#include <map>

namespace {

void write(const QDir& folder, const QByteArray& name, const QByteArray& content) {
    QFile file(folder.filePath(QString::fromLatin1(name)));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

} // namespace

void SmallWordNet::writeTo(const QString& folder) const {
    for (const QByteArray part : {"noun", "verb", "adj", "adv"}) {
        QByteArray data =
            "  1 Copyright by the makers of the dictionary.  \n  2   \n  3 Keep this.  \n";
        std::map<QByteArray, QList<QByteArray>> places;
        for (const Sense& sense : senses) {
            if (sense.part != part)
                continue;
            const QByteArray place = QByteArray::number(data.size()).rightJustified(8, '0');
            places[sense.word.toLower()].append(place);
            data += place + ' ' + sense.category + " n 01 " + sense.word + " 0 000 | "
                    + sense.meaning + "  \n";
        }
        QByteArray index = "  1 Copyright by the makers of the dictionary.  \n";
        for (const auto& [word, list] : places) {
            const QByteArray count = QByteArray::number(list.size());
            index += word + " n " + count + " 1 @ " + count + " 0 " + list.join(' ') + "  \n";
        }
        QByteArray exceptions;
        for (const auto& [form, base] : irregular)
            exceptions += part == "verb" ? form + ' ' + base + '\n' : QByteArray();
        write(QDir(folder), "data." + part, data);
        write(QDir(folder), "index." + part, index);
        write(QDir(folder), part + ".exc", exceptions);
    }
}
