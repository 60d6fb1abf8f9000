// The verses of a text in Zefania XML.
#pragma once

#include "readers/ElementReader.h"

class ZefaniaReader final : public ElementReader {
public:
    explicit ZefaniaReader(const QString& path);

private:
    MarkupKind begin(QStringView name, const QXmlStreamAttributes& attributes) override;
    void end(QStringView name) override;

    bool m_isInInformation = false;
};
