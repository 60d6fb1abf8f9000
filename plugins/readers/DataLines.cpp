#include "readers/DataLines.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

DataLines::DataLines(const QString& path, qsizetype fieldCount)
    : m_file(path)
    , m_fieldCount(fieldCount) {
    if (!m_file.open(QIODevice::ReadOnly))
        throw Error(Error::FileNotFound, u"The file %1 cannot be read."_s.arg(path));
}

std::optional<QStringList> DataLines::next() {
    while (!m_file.atEnd()) {
        const QString line = QString::fromUtf8(m_file.readLine());
        ++m_line;
        if (line.trimmed().isEmpty() || line.startsWith(u'#'))
            continue;
        QStringList fields = line.split(u'\t');
        if (fields.size() != m_fieldCount)
            throw lineError(u"%1 field(s) where %2 are expected"_s.arg(
                QString::number(fields.size()), QString::number(m_fieldCount)));
        for (QString& field : fields) {
            field = field.trimmed();
            if (field.isEmpty())
                throw lineError(u"an empty field"_s);
        }
        return fields;
    }
    return std::nullopt;
}

Error DataLines::lineError(const QString& reason) const {
    return {
        Error::InvalidPropertyValue,
        u"%1:%2: %3"_s.arg(
            QFileInfo(m_file.fileName()).fileName(), QString::number(m_line), reason)};
}
