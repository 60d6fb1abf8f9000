#include "readers/OpenSource.h"

#include "basic/Error.h"
#include "jet/JetVerses.h"
#include "readers/DelimitedReader.h"
#include "readers/FolderReader.h"
#include "readers/ModuleFolder.h"
#include "readers/OsisReader.h"
#include "readers/TextLines.h"
#include "readers/UsfmReader.h"
#include "readers/UsfxReader.h"
#include "readers/UsxReader.h"
#include "readers/XmlInput.h"
#include "readers/ZefaniaReader.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

using Source = std::unique_ptr<VerseSource>;

template <class Reader>
Source make(const QString& path) {
    return std::make_unique<Reader>(path);
}

struct XmlFormat {
    QLatin1String root;
    Source (*open)(const QString& path);
};

constexpr std::array XmlFormats{
    XmlFormat{"osis"_L1, make<OsisReader>},
    XmlFormat{"usx"_L1, make<UsxReader>},
    XmlFormat{"usfx"_L1, make<UsfxReader>},
    XmlFormat{"XMLBIBLE"_L1, make<ZefaniaReader>},
};

// How files that are no text begin, and what they are.
struct Signature {
    QByteArrayView bytes;
    QLatin1String meaning;
};

constexpr QLatin1String Archive = "this is a compressed archive; unpack it first"_L1;
constexpr std::array Signatures{
    Signature{QByteArrayView("PK\x03\x04"), "this is a zip archive; unpack it first"_L1},
    Signature{QByteArrayView("PK\x05\x06"), "this is a zip archive; unpack it first"_L1},
    Signature{QByteArrayView("\x1F\x8B"), Archive},
    Signature{QByteArrayView("7z\xBC\xAF"), Archive},
    Signature{QByteArrayView("Rar!"), Archive},
    Signature{QByteArrayView("BZh"), Archive},
    Signature{QByteArrayView("\xFD\x37zXZ"), Archive},
    Signature{QByteArrayView("%PDF"), "this is a PDF file; expected a text"_L1},
    Signature{
        QByteArrayView("SQLite format 3"),
        "this is an SQLite file; a data file of Lumenvia needs no import"_L1},
};

constexpr qint64 HeadSize = 4096;
constexpr int LinesToJudgeBy = 50;

[[noreturn]] void refuse(const QString& path, const QString& what) {
    throw Error(Error::NotADatabase, u"%1: %2"_s.arg(QFileInfo(path).fileName(), what));
}

QByteArray headOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw Error(
            Error::FileNotFound,
            u"%1 cannot be read: %2."_s.arg(QFileInfo(path).fileName(), file.errorString()));
    return file.read(HeadSize);
}

void checkHead(const QString& path, const QByteArray& head) {
    if (head.isEmpty())
        refuse(path, u"the file is empty"_s);
    for (const Signature& signature : Signatures) {
        if (head.startsWith(signature.bytes))
            refuse(path, signature.meaning);
    }
}

// Control characters that no text has; one of them begins our own red-letter prefix.
void checkIsText(const QString& path, const QString& text) {
    const auto isForeign = [](QChar each) {
        return each < u' ' && !each.isSpace() && each != u'\x1E';
    };
    if (std::any_of(text.begin(), text.end(), isForeign))
        refuse(path, u"this is no text that the program can read"_s);
}

// Whatever the encoding: the first character is "<".
bool isXml(QByteArray head) {
    for (const QByteArrayView mark : {"\xEF\xBB\xBF", "\xFE\xFF", "\xFF\xFE"}) {
        if (head.startsWith(mark))
            head.remove(0, mark.size());
    }
    return head.replace('\0', QByteArrayView()).trimmed().startsWith('<');
}

// The first words of a text file, whatever its encoding.
QStringList firstLines(const QString& path) {
    TextLines lines(path);
    QStringList first;
    while (first.size() < LinesToJudgeBy) {
        std::optional<QString> line = lines.next();
        if (!line)
            break;
        line->truncate(HeadSize);
        checkIsText(path, *line);
        if (!line->trimmed().isEmpty())
            first.append(line->trimmed());
    }
    return first;
}

bool isUsfm(const QStringList& lines) {
    return std::any_of(
        lines.begin(), lines.end(), [](const QString& line) { return line.startsWith(u'\\'); });
}

QString rootOf(const QString& path) {
    XmlInput input(path);
    while (input.next() != QXmlStreamReader::StartElement) {
    }
    return input.reader().name().toString();
}

const XmlFormat* findXmlFormat(const QString& root) {
    for (const XmlFormat& format : XmlFormats) {
        if (root.compare(format.root, Qt::CaseInsensitive) == 0)
            return &format;
    }
    return nullptr;
}

Source openXml(const QString& path) {
    const QString root = rootOf(path);
    if (const XmlFormat* format = findXmlFormat(root))
        return format->open(path);
    refuse(
        path,
        u"the root element is <%1>; expected <osis>, <usx>, <usfx> or <XMLBIBLE>"_s.arg(root));
}

Source openFile(const QString& path) {
    if (isModulePath(path))
        return openModulePath(path);
    if (isJetFile(path))
        return std::make_unique<JetVerses>(path);
    const QByteArray head = headOf(path);
    checkHead(path, head);
    if (isXml(head))
        return openXml(path);
    const QStringList lines = firstLines(path);
    if (lines.isEmpty())
        refuse(path, u"the file is empty"_s);
    if (isUsfm(lines))
        return std::make_unique<UsfmReader>(path);
    return std::make_unique<DelimitedReader>(path);
}

} // namespace

std::unique_ptr<VerseSource> openVerseSource(const QString& path) {
    const QFileInfo info(path);
    if (!info.exists())
        throw Error(
            Error::FileNotFound, u"There is no file or folder %1."_s.arg(info.absoluteFilePath()));
    if (!info.isDir() && !info.isFile()) // reading a pipe may never end
        refuse(path, u"this is neither a file nor a folder"_s);
    if (!info.isDir())
        return openFile(path);
    return isModulePath(path) ? openModulePath(path) : std::make_unique<FolderReader>(path);
}

bool isBookFile(const QString& path) {
    try {
        const QByteArray head = headOf(path);
        checkHead(path, head);
        return isXml(head) ? findXmlFormat(rootOf(path)) != nullptr : isUsfm(firstLines(path));
    } catch (const Error&) {
        return false;
    }
}
