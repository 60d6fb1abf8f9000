#include "basic/Error.h"

Error::Error(Number number, const QString& text)
    : m_number(number)
    , m_text(text)
    , m_what(text.toUtf8()) {}
