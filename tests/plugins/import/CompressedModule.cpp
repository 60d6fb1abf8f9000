#include "plugins/import/CompressedModule.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

#include <versekey.h>
#include <zipcomprs.h>
#include <ztext.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int BlockOfBook = 4;

void writeFiles(const SmallModule& module, const QByteArray& path) {
    const char* scheme = module.verseScheme.constData();
    sword::zText::createModule(path.constData(), BlockOfBook, scheme);
    sword::zText text(
        path.constData(), nullptr, nullptr, BlockOfBook, new sword::ZipCompress, nullptr,
        sword::ENC_UTF8, sword::DIRECTION_LTR, sword::FMT_OSIS, nullptr, scheme);
    for (const auto& [place, words] : module.entries) {
        sword::VerseKey key;
        key.setVersificationSystem(scheme);
        key.setText(place.constData());
        text.setKey(key);
        text.setEntry(words.constData(), words.size());
    }
}

} // namespace

void writeCompressed(const SmallModule& module, const QString& folder) {
    module.writeTo(folder);
    QDir data(folder + u"/modules/"_s + module.name);
    for (const QString& name : data.entryList(QDir::Files))
        ASSERT_TRUE(data.remove(name));
    writeFiles(module, QFile::encodeName(data.path()));
    QFile description(folder + u"/mods.d/%1.conf"_s.arg(module.name.toLower()));
    ASSERT_TRUE(description.open(QIODevice::ReadWrite));
    QByteArray content = description.readAll();
    content.replace("ModDrv=RawText", "ModDrv=zText\nCompressType=ZIP\nBlockType=BOOK");
    description.seek(0);
    description.write(content);
}
