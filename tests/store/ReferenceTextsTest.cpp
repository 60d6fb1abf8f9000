// The criteria of the reference works, the notes, the topics and of every jump to a place: which
// row of a small table each one finds.
#include "StoreFixture.h"

namespace {

class ReferenceTexts : public StoreFixture {
protected:
    struct Found {
        QString criteria;
        qlonglong row; // 0 for none
    };

    // Makes the table `t` by these statements and looks for the first row of each criteria text.
    void expectFound(const std::vector<const char*>& table, const std::vector<Found>& texts) {
        makeFile(table);
        Recordset cursor = openDynaset(u"t"_s);
        for (const Found& text : texts) {
            cursor.FindFirst(text.criteria);
            EXPECT_EQ(cursor.NoMatch() ? 0 : rowOf(cursor), text.row)
                << text.criteria.toStdString();
        }
    }
};

TEST_F(ReferenceTexts, aVerseIsFoundByItsNumberAndByItsAddress) {
    expectFound(
        {"CREATE TABLE t (ID INTEGER PRIMARY KEY, book INTEGER, chapter INTEGER, verse INTEGER, "
         "body TEXT, note TEXT)",
         "INSERT INTO t VALUES (1,1,1,1,'a',NULL),(2,1,1,2,'b',' '),(3,5,1,1,'c','A Note, été'),"
         "(4,40,1,1,'d','x'),(5,40,12,34,'e','it is'),(6,66,22,21,NULL,'note')"},
        {{u"ID =  5"_s, 5},
         {u"ID = 5"_s, 5},
         {u"ID =5"_s, 5},
         {u"ID=5"_s, 5},
         {u"ID = 7"_s, 0},
         {u"book =  5 and chapter = 1 and verse = 1"_s, 3},
         {u"book = 1 and chapter = 1 and verse = 1"_s, 1},
         {u"book = 40 and chapter = 1 and verse = 1"_s, 4},
         {u"book = 40 and chapter = 12 and verse = 34"_s, 5},
         {u"book = 40 and chapter = 12 and verse = 35"_s, 0},
         {u"book = 1"_s, 1},
         {u"book = 40"_s, 4},
         {u"book = 12"_s, 0},
         {u"note like '*note*'"_s, 3},
         {u"note like '*ÉTÉ*'"_s, 3},
         {u"note like '*IS*'"_s, 5},
         {u"note like '**'"_s, 2},
         {u"note like '*nothing*'"_s, 0}});
}

TEST_F(ReferenceTexts, aNameIsFoundAsAWholeAndByItsHead) {
    expectFound(
        {"CREATE TABLE t (id INTEGER PRIMARY KEY, name TEXT, definition TEXT)",
         "INSERT INTO t VALUES (1,NULL,'no name'),(2,'Aaron','a teacher'),(3,'Abaddon','x'),"
         "(4,'Élie','y'),(5,'Abba','z'),(6,'It''s','w')"},
        {{u"name = \"AARON\""_s, 2},
         {u"name = \"Aar\""_s, 0},
         {u"name = \"\""_s, 0},
         {u"name = \"it's\""_s, 6},
         {u"name like \"ab*\""_s, 3},
         {u"name like \"abb*\""_s, 5},
         {u"name like \"élie*\""_s, 4},
         {u"name like \"aaronites*\""_s, 0},
         {u"name like \"*\""_s, 2}});
}

TEST_F(ReferenceTexts, aWordOfTheDictionaryIsFoundByItsHead) {
    expectFound(
        {"CREATE TABLE t (id INTEGER PRIMARY KEY, word TEXT, definition TEXT, label TEXT)",
         "INSERT INTO t VALUES (1,NULL,'','' ),(2,'Grace','',''),(3,'grain','','')"},
        {{u"word like \"GRA*\""_s, 2}, {u"word like \"grai*\""_s, 3}, {u"word like \"*\""_s, 2}});
}

TEST_F(ReferenceTexts, aYearIsATextAndAnEventIsFoundByItsWords) {
    expectFound(
        {"CREATE TABLE t (id INTEGER PRIMARY KEY, year TEXT, event TEXT)",
         "INSERT INTO t VALUES (1,'170','The Flood'),(2,'70','Fall of Jerusalem'),(3,'070',NULL),"
         "(4,'70','another')"},
        {{u"ID = 3"_s, 3},
         {u"ID =  3"_s, 3},
         {u"year = \"70\""_s, 2},
         {u"year = \"7\""_s, 0},
         {u"year like \"*70*\""_s, 1},
         {u"event like \"*flood*\""_s, 1},
         {u"event like \"*fall of*\""_s, 2},
         {u"event like \"**\""_s, 1}});
}

TEST_F(ReferenceTexts, aCommentIsFoundByItsChapterAndItsWords) {
    expectFound(
        {"CREATE TABLE t (ID INTEGER PRIMARY KEY, book INTEGER, chapter INTEGER, comment TEXT)",
         "INSERT INTO t VALUES (1,1,1,'{\\rtf1 Creation}'),(2,1,2,NULL),(3,2,1,'of grace')"},
        {{u"book =  2 and chapter =  1"_s, 3},
         {u"book =  1 and chapter =  2"_s, 2},
         {u"book =  1 and chapter =  3"_s, 0},
         {u"ID = 0"_s, 0},
         {u"ID = 1"_s, 1},
         {u"comment like \"*GRACE*\""_s, 3},
         {u"comment like \"*\\rtf1*\""_s, 1}});
}

TEST_F(ReferenceTexts, aGreekEntryIsFoundInEachOfItsFields) {
    expectFound(
        {"CREATE TABLE t (id INTEGER PRIMARY KEY, strong TEXT, word TEXT, sound TEXT, greek TEXT, "
         "wordorigin TEXT, wordusage TEXT, definition TEXT)",
         "INSERT INTO t VALUES (1,'G26','agape','ag-ah''-pay','ἀγάπη','from 25','love, charity',"
         "'1) affection'),(2,NULL,NULL,NULL,NULL,NULL,NULL,NULL),"
         "(3,'G3056','logos','log''-os','λόγος','from 3004','word, saying','2) speech')"},
        {{u"strong like '*3056*'"_s, 3},
         {u"word like '*LOGOS*'"_s, 3},
         {u"sound like '*log*'"_s, 3},
         {u"greek like '*ΛΌΓΟΣ*'"_s, 3},
         {u"wordorigin like '*from*'"_s, 1},
         {u"wordusage like '*word*'"_s, 3},
         {u"definition like '*2)*'"_s, 3},
         {u"wordusage like '*hope*'"_s, 0}});
}

TEST_F(ReferenceTexts, aTopicIsFoundByItsName) {
    expectFound(
        {"CREATE TABLE t (\"unique\" INTEGER PRIMARY KEY AUTOINCREMENT, topicname TEXT)",
         "INSERT INTO t VALUES (1,NULL),(2,''),(3,'Faith'),(4,'FAITH'),(5,'God''s grace')"},
        {{u"topicname = \"faith\""_s, 3},
         {u"topicname = \"God's Grace\""_s, 5},
         {u"topicname = \"\""_s, 2},
         {u"topicname = \"hope\""_s, 0}});
}

} // namespace
