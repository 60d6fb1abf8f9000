#include "jet/JetKind.h"

#include "basic/Error.h"
#include "jet/JetVerses.h"
#include "store/DataFile.h"
#include "store/JetConverter.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 HeadSize = 100;
constexpr QByteArrayView SqliteSignature("SQLite format 3\0", 16);
constexpr int ApplicationIdOffset = 68;

bool isOurHead(const QByteArray& head) {
    return head.size() == HeadSize && head.startsWith(SqliteSignature)
           && qFromBigEndian<qint32>(head.constData() + ApplicationIdOffset)
                  == DataFileApplicationId;
}

} // namespace

FileKind kindOfFile(const QString& path) {
    const QFileInfo info(path);
    if (!info.exists())
        throw Error(Error::FileNotFound, u"The file %1 does not exist."_s.arg(path));
    QFile file(path);
    if (!info.isFile() || !file.open(QIODevice::ReadOnly))
        throw Error(Error::PathAccess, u"The file %1 cannot be read."_s.arg(path));
    const QByteArray head = file.read(HeadSize);
    return isJetHead(head) ? FileKind::Jet : isOurHead(head) ? FileKind::Ours : FileKind::Other;
}

bool isJetFile(const QString& path) {
    bool isJet = false;
    attempt([&] { isJet = kindOfFile(path) == FileKind::Jet; });
    return isJet;
}
