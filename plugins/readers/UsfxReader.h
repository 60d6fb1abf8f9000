// The verses of a text in USFX.
#pragma once

#include "readers/ElementReader.h"

class UsfxReader final : public ElementReader {
public:
    explicit UsfxReader(const QString& path);

private:
    MarkupKind begin(QStringView name, const QXmlStreamAttributes& attributes) override;
};
