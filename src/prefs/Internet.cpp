#include "prefs/Internet.h"

#include "basic/Error.h"
#include "controls/Forms.h"
#include "desktop/Desktop.h"
#include "output/frmEmail.h"

using namespace Qt::StringLiterals;

namespace {

bool encodesCharacter(const QByteArray& link, qsizetype place) {
    const auto isHexDigit = [](char digit) {
        return (digit >= '0' && digit <= '9') || (digit >= 'A' && digit <= 'F')
               || (digit >= 'a' && digit <= 'f');
    };
    return place + 2 < link.size() && isHexDigit(link[place + 1]) && isHexDigit(link[place + 2]);
}

// Whether a link may hold the character of this place as it is.
bool standsInLink(const QByteArray& link, qsizetype place) {
    const char character = link[place];
    if (character == '%')
        return encodesCharacter(link, place);
    return character > ' ' && character < 0x7f
           && !QByteArrayView("\"<>\\^`{|}").contains(character);
}

QString encodedLink(const QString& link) {
    constexpr char Percent = '%';
    const QByteArray characters = link.toUtf8();
    QByteArray encoded;
    for (qsizetype place = 0; place < characters.size(); ++place) {
        if (standsInLink(characters, place))
            encoded += characters[place];
        else
            encoded += Percent + characters.mid(place, 1).toHex().toUpper();
    }
    return QString::fromLatin1(encoded);
}

} // namespace

bool IsConnected() {
    return true;
}

void OpenUrl(const QString& Url) {
    if (!Url.contains(u"mailto"_s))
        MsgBox(u"Make sure you're connected to the Internet."_s, MessageIcon::Information);
    if (!IsConnected()) {
        MsgBox(
            u"Make sure you're connected to the Internet.\r\n\r\nI'll try to connect for you, but "
            u"you may need to connect and try this command again."_s,
            MessageIcon::Information);
    }
    attempt([&] { desktop().openLink(encodedLink(Url)); });
}

void EmailText(const QString& Text) {
    auto& window = form<frmEmail>();
    window.Load();
    window.EmailBody = Text;
    window.ShowModal();
}
