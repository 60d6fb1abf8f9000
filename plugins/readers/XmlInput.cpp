#include "readers/XmlInput.h"

#include "Interruption.h"
#include "basic/Error.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 LongestPiece = 8 << 20; // bytes between one token and the next
constexpr int GreatestDepth = 20'000;

} // namespace

// Hands a file on until too much of it was asked for at once.
class XmlInput::Device final : public QIODevice {
public:
    explicit Device(const QString& path)
        : m_file(path) {
        if (!m_file.open(QIODevice::ReadOnly))
            throw Error(
                Error::FileNotFound,
                u"%1 cannot be read: %2."_s.arg(QFileInfo(path).fileName(), m_file.errorString()));
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }

    QString fileName() const { return QFileInfo(m_file.fileName()).fileName(); }
    double fraction() const {
        return m_file.size() > 0 ? double(m_file.pos()) / double(m_file.size()) : 1;
    }
    void beginPiece() { m_pieceStart = m_file.pos(); }
    bool isExhausted() const { return m_file.pos() - m_pieceStart > LongestPiece; }
    bool hasFailed() const { return m_file.error() != QFileDevice::NoError; }
    QString failure() const { return m_file.errorString(); }

    bool isSequential() const override { return true; }
    bool atEnd() const override { return isExhausted() || m_file.atEnd(); }

protected:
    qint64 readData(char* data, qint64 size) override {
        return isExhausted() ? -1 : m_file.read(data, size);
    }
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    QFile m_file;
    qint64 m_pieceStart = 0;
};

XmlInput::XmlInput(const QString& path)
    : m_device(std::make_unique<Device>(path))
    , m_reader(m_device.get()) {
    m_reader.setNamespaceProcessing(false);
}

XmlInput::~XmlInput() = default;

QXmlStreamReader::TokenType XmlInput::next() {
    checkInterrupt();
    m_device->beginPiece();
    const QXmlStreamReader::TokenType token = m_reader.readNext();
    if (m_device->hasFailed())
        fail(m_device->failure());
    if (m_device->isExhausted())
        fail(u"No end of this text or tag within %1 bytes."_s.arg(LongestPiece));
    if (m_reader.hasError())
        fail(m_reader.errorString());
    if (token == QXmlStreamReader::EntityReference)
        fail(u"The entity \"%1\" is not known."_s.arg(m_reader.name()));
    if (token == QXmlStreamReader::DTD)
        refuseOtherFiles();
    if (token == QXmlStreamReader::StartElement && ++m_depth > GreatestDepth)
        fail(u"The elements are nested deeper than %1."_s.arg(GreatestDepth));
    if (token == QXmlStreamReader::EndElement)
        --m_depth;
    return token;
}

// The library would leave out without a word what an entity has elsewhere.
void XmlInput::refuseOtherFiles() const {
    for (const QXmlStreamEntityDeclaration& entity : m_reader.entityDeclarations()) {
        if (!entity.systemId().isEmpty())
            fail(
                u"The entity \"%1\" lies in another file, which is not read."_s.arg(entity.name()));
    }
}

double XmlInput::fraction() const {
    return m_device->fraction();
}

void XmlInput::fail(const QString& what) const {
    throw Error(
        Error::NotADatabase, u"%1: line %2, column %3: %4"_s.arg(
                                 m_device->fileName(), QString::number(m_reader.lineNumber()),
                                 QString::number(m_reader.columnNumber()), what));
}
