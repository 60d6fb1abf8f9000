#include "store/JetConverter.h"

namespace {

JetConverter& chosenConverter() {
    static JetConverter converter;
    return converter;
}

} // namespace

void setJetConverter(JetConverter converter) {
    chosenConverter() = std::move(converter);
}

const JetConverter& jetConverter() {
    return chosenConverter();
}
