// An XML file, read piece by piece. Whatever the file, memory stays bounded: entities are not
// expanded far and never fetched, a single piece of mark-up or text has its limit, and so has the
// depth.
#pragma once

#include <QXmlStreamReader>
#include <memory>

class XmlInput {
public:
    // Error::FileNotFound for a file that cannot be opened.
    explicit XmlInput(const QString& path);
    ~XmlInput();
    Q_DISABLE_COPY_MOVE(XmlInput)

    // The next token, which `reader` stands on; EndDocument at the end. Error::NotADatabase, with
    // file, line and column, for what is no XML. Interrupted (Interruption.h).
    QXmlStreamReader::TokenType next();
    const QXmlStreamReader& reader() const { return m_reader; }

    // How much of the file has been read, 0 to 1.
    double fraction() const;

private:
    class Device;
    void refuseOtherFiles() const;
    [[noreturn]] void fail(const QString& what) const;

    std::unique_ptr<Device> m_device;
    QXmlStreamReader m_reader;
    int m_depth = 0;
};
