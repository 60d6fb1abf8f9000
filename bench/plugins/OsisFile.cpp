#include "OsisFile.h"

#include "store/Workspace.h"
#include "text/BookTable.h"

#include <QFile>
#include <QXmlStreamWriter>

using namespace Qt::StringLiterals;

namespace {

constexpr QChar RedMark(30);

void writeBody(QXmlStreamWriter& xml, const QString& body) {
    if (!body.startsWith(RedMark)) {
        xml.writeCharacters(body);
        return;
    }
    const QString text = body.mid(8);
    const int start = body.mid(1, 3).toInt();
    const int length = body.mid(5, 3).toInt();
    xml.writeCharacters(text.left(start));
    xml.writeStartElement(u"q"_s);
    xml.writeAttribute(u"who"_s, u"Jesus"_s);
    xml.writeCharacters(text.mid(start, length));
    xml.writeEndElement();
    xml.writeCharacters(text.mid(start + length));
}

void start(QXmlStreamWriter& xml, const QString& element, const QString& type, const QString& id) {
    xml.writeStartElement(element);
    if (!type.isEmpty())
        xml.writeAttribute(u"type"_s, type);
    xml.writeAttribute(u"osisID"_s, id);
}

class OsisDocument {
public:
    explicit OsisDocument(QIODevice& device)
        : m_xml(&device) {
        m_xml.writeStartDocument();
        m_xml.writeStartElement(u"osis"_s);
        m_xml.writeStartElement(u"osisText"_s);
    }

    void add(const VerseAddress& address, const QString& body) {
        const QString book = books()[address.book - 1].osis;
        const QString chapter = book + u'.' + QString::number(address.chapter);
        if (address.book != m_last.book)
            begin(m_last.book == 0 ? 0 : 2, u"div"_s, u"book"_s, book);
        if (address.book != m_last.book || address.chapter != m_last.chapter)
            begin(address.book == m_last.book ? 1 : 0, u"chapter"_s, {}, chapter);
        start(m_xml, u"verse"_s, {}, chapter + u'.' + QString::number(address.verse));
        writeBody(m_xml, body);
        m_xml.writeEndElement();
        m_last = address;
    }

    void finish() { m_xml.writeEndDocument(); }

private:
    void begin(int closing, const QString& element, const QString& type, const QString& id) {
        while (closing-- > 0)
            m_xml.writeEndElement();
        m_xml.writeCharacters(u"\n"_s);
        start(m_xml, element, type, id);
    }

    QXmlStreamWriter m_xml;
    VerseAddress m_last;
};

} // namespace

void writeOsis(const QString& dataFile, const QString& path) {
    Workspace workspace = DBEngine::CreateWorkspace(u"Bench"_s, u"Admin"_s, {});
    Recordset rows = workspace.OpenDatabase(dataFile, OpenMode::ReadOnly)
                         .OpenRecordset(u"tblMain"_s, dbOpenTable);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return;
    OsisDocument document(file);
    for (; !rows.Eof(); rows.MoveNext())
        document.add(
            {rows.Fields(1).Value().toInt(), rows.Fields(2).Value().toInt(),
             rows.Fields(3).Value().toInt()},
            rows.Fields(4).Value().toString());
    document.finish();
}
