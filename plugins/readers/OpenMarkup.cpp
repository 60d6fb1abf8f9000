#include "readers/OpenMarkup.h"

void OpenMarkup::open(MarkupKind kind) {
    m_open.append(kind);
    if (kind == MarkupKind::Red)
        ++m_red;
    if (kind == MarkupKind::Note || kind == MarkupKind::Heading)
        ++m_dropping;
    else if (m_dropping > 0)
        return;
    else if (kind == MarkupKind::Title)
        m_verses.startTitle();
    else if (kind == MarkupKind::Separate)
        m_verses.separate();
}

void OpenMarkup::close() {
    if (m_open.isEmpty())
        return;
    const MarkupKind kind = m_open.takeLast();
    if (kind == MarkupKind::Red)
        --m_red;
    if (kind == MarkupKind::Note || kind == MarkupKind::Heading)
        --m_dropping;
    if (m_dropping > 0)
        return;
    if (kind == MarkupKind::Note)
        m_verses.markJoint();
    else if (kind == MarkupKind::Title)
        m_verses.endTitle();
    else if (kind == MarkupKind::Separate || kind == MarkupKind::Heading)
        m_verses.separate();
}

void OpenMarkup::characters(QStringView text) {
    if (m_dropping == 0)
        m_verses.append(text, m_red > 0);
}
