#include "store/JetConverter.h"

namespace {

constexpr QByteArrayView Start("\0\1\0\0", 4);
constexpr QByteArrayView Names[] = {"Standard Jet DB", "Standard ACE DB"};

JetConverter& chosenConverter() {
    static JetConverter converter;
    return converter;
}

} // namespace

bool isJetHead(QByteArrayView head) {
    if (!head.startsWith(Start))
        return false;
    const QByteArrayView name = head.sliced(Start.size());
    return name.startsWith(Names[0]) || name.startsWith(Names[1]);
}

void setJetConverter(JetConverter converter) {
    chosenConverter() = std::move(converter);
}

const JetConverter& jetConverter() {
    return chosenConverter();
}
