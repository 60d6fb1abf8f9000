#include "store/DataFile.h"

// VerseIndex is not unique: a file that its user made may hold a verse twice, and both can be read.
void createTranslationSchema(DataFileWriter& writer) {
    writer.execute("CREATE TABLE tblMain ("
                   "ID INTEGER PRIMARY KEY, book INTEGER, chapter INTEGER, verse INTEGER, "
                   "body TEXT, note TEXT)");
    writer.execute("CREATE INDEX VerseIndex ON tblMain (book, chapter, verse)");
}

// A topic's number is never given to another one, whose verses the old one's would become.
void createTopicsSchema(DataFileWriter& writer) {
    writer.execute("CREATE TABLE tblTopicName ("
                   "\"unique\" INTEGER PRIMARY KEY AUTOINCREMENT, topicname TEXT)");
    writer.execute("CREATE TABLE tblData ("
                   "\"unique\" INTEGER, ordinal INTEGER, book INTEGER, chapter INTEGER, "
                   "verse INTEGER, body TEXT)");
}

void createInfoTable(DataFileWriter& writer) {
    writer.execute("CREATE TABLE tblInfo (title TEXT, source TEXT, licence TEXT, date TEXT)");
}
