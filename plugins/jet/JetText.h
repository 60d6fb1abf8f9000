// Texts as Jet stores them: bytes of a code page in Jet 3; UTF-16, compressed or not, since.
#pragma once

#include <QByteArrayView>
#include <QString>
#include <array>
#include <optional>

class JetText {
public:
    // UTF-16.
    JetText() = default;

    // One byte a character; 0 stands for 1252. Error::NotADatabase, which names the file, for a
    // code page of more bytes a character or an unknown one.
    static JetText ofCodePage(int codePage, const QString& fileName);

    // No value for bytes that are no text.
    std::optional<QString> decode(QByteArrayView bytes) const;

private:
    using CharacterTable = std::array<char16_t, 256>;
    std::optional<CharacterTable> m_characters;
};
