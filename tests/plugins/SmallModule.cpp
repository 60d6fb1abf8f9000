#include "plugins/SmallModule.h"

#include "readers/SwordLibrary.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

#include <rawtext.h>
#include <versekey.h>

using namespace Qt::StringLiterals;

void SmallModule::writeTo(const QString& folder) const {
    isolateSwordLibrary();
    const QString data = folder + u"/modules/"_s + name;
    ASSERT_TRUE(QDir().mkpath(data) && QDir().mkpath(folder + u"/mods.d"_s));
    QFile description(folder + u"/mods.d/"_s + name.toLower() + u".conf"_s);
    ASSERT_TRUE(description.open(QIODevice::WriteOnly));
    description.write(
        "[" + name.toUtf8() + "]\nDataPath=./modules/" + name.toUtf8()
        + "/\nModDrv=RawText\nSourceType=" + markup + "\nEncoding=" + encoding
        + "\nVersification=" + verseScheme
        + "\nDescription=A small text\nVersion=7.1\nDistributionLicense=Public Domain\n");
    const QByteArray path = QFile::encodeName(data);
    sword::RawText::createModule(path.constData(), verseScheme.constData());
    sword::RawText module(
        path.constData(), nullptr, nullptr, nullptr, sword::ENC_UTF8, sword::DIRECTION_LTR,
        sword::FMT_OSIS, nullptr, verseScheme.constData());
    for (const auto& [place, text] : entries) {
        sword::VerseKey key;
        key.setVersificationSystem(verseScheme.constData());
        key.setText(place.constData());
        module.setKey(key);
        module.setEntry(text.constData(), text.size());
    }
}
