// The verses of a book in USX.
#pragma once

#include "readers/ElementReader.h"

class UsxReader final : public ElementReader {
public:
    explicit UsxReader(const QString& path);

private:
    MarkupKind begin(QStringView name, const QXmlStreamAttributes& attributes) override;
};
