// Making data files: whole or not at all.
#include "StoreFixture.h"

#include <QDateTime>
#include <QDir>
#include <QFile>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

namespace {

class DataFile : public StoreFixture {
protected:
    // All that stands in the folder.
    QStringList files() const {
        return QDir(QFileInfo(path()).path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    void write(const QString& name, const QByteArray& content) {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
};

TEST_F(DataFile, appearsOnlyWhenItIsComplete) {
    DataFileWriter writer(path());
    createTranslationSchema(writer);
    writer.insert(u"tblMain"_s, {QVariant(), 1, 1, 1, u"body"_s, QVariant()});
    EXPECT_FALSE(QFile::exists(path()));
    writer.finish();
    EXPECT_EQ(files(), QStringList{u"test.mdb"_s});
    EXPECT_EQ(openByVerse().Fields(4).Value(), QVariant(u"body"_s));
}

TEST_F(DataFile, thatIsNotFinishedLeavesNothing) {
    {
        DataFileWriter writer(path());
        createTranslationSchema(writer);
    }
    EXPECT_EQ(files(), QStringList());
}

TEST_F(DataFile, takesThePlaceOfAnotherAsAWhole) {
    makeTranslation({{1, 1, 1, u"old"_s}});
    DataFileWriter writer(path());
    createTranslationSchema(writer);
    writer.insert(u"tblMain"_s, {QVariant(), 1, 1, 1, u"new"_s, QVariant()});
    EXPECT_EQ(openByVerse().Fields(4).Value(), QVariant(u"old"_s));
    writer.finish();
    EXPECT_EQ(openByVerse().Fields(4).Value(), QVariant(u"new"_s));
    EXPECT_EQ(files(), QStringList{u"test.mdb"_s});
}

TEST_F(DataFile, takesThePlaceOfAnyFile) {
    write(u"test.mdb"_s, "no database at all");
    write(u"test.mdb-journal"_s, "left by nobody");
    makeTranslation({{1, 1, 1, u"new"_s}});
    EXPECT_EQ(openByVerse().Fields(4).Value(), QVariant(u"new"_s));
    EXPECT_EQ(files(), QStringList{u"test.mdb"_s});
}

TEST_F(DataFile, isNotHarmedByAJournalThatADeadProgramLeft) {
    for (const QByteArray& journal :
         {QByteArray(2000, '\0'),
          QByteArray::fromHex("d9d505f920a163d7") + QByteArray(2000, '\1')}) {
        makeTranslation({{1, 1, 1, u"old"_s}});
        write(u"test.mdb-journal"_s, journal);
        makeTranslation({{1, 1, 1, u"new"_s}});
        EXPECT_EQ(files(), QStringList{u"test.mdb"_s});
        EXPECT_EQ(openByVerse().Fields(4).Value(), QVariant(u"new"_s));
        write(u"other.mdb-journal"_s, journal);
        makeTranslation({{1, 1, 1, u"new"_s}}, u"other.mdb"_s);
        EXPECT_EQ(openByVerse(u"other.mdb"_s).Fields(4).Value(), QVariant(u"new"_s));
        QFile::remove(path(u"other.mdb"_s));
    }
}

TEST_F(DataFile, clearsAwayWhatDeadProgramsLeftButNotWhatOthersAreWriting) {
    const QString dead = u"test.mdb.new-0123456789abcdef0123456789abcdef"_s;
    const QString atWork = u"test.mdb.new-fedcba9876543210fedcba9876543210"_s;
    const QStringList others = {
        u"test.mdb.new-notes"_s, u"other.mdb.new-0123456789abcdef0123456789abcdef"_s};
    for (const QString& name : others + QStringList{dead, dead + u"-journal"_s, atWork}) {
        write(name, "half a file");
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        const int age = name == atWork ? 10 : 2 * 60 * 60;
        file.setFileTime(
            QDateTime::currentDateTime().addSecs(-age), QFileDevice::FileModificationTime);
    }
    makeTranslation({{1, 1, 1}});
    EXPECT_EQ(files(), QStringList({others[1], u"test.mdb"_s, atWork, others[0]}));
}

TEST_F(DataFile, keepsValuesAsTheyAre) {
    makeFile({"CREATE TABLE t (a INTEGER, b REAL, c TEXT, d BLOB, e TEXT)"});
    DataFileWriter writer(path());
    writer.execute("CREATE TABLE t (a INTEGER, b REAL, c TEXT, d BLOB, e TEXT)");
    writer.insert(u"t"_s, {7, 0.5, u"x\0y"_s, QByteArray("\0\1", 2), QVariant()});
    writer.insert(u"t"_s, {u"8"_s, 2, 9, u"text"_s, u""_s});
    writer.finish();
    Recordset cursor = openDynaset(u"t"_s);
    const auto row = [&] {
        QVariantList values;
        for (int field = 0; field < 5; ++field)
            values += cursor.Fields(field).Value();
        return values;
    };
    EXPECT_EQ(row(), (QVariantList{7LL, 0.5, u"x\0y"_s, QByteArray("\0\1", 2), QVariant()}));
    cursor.MoveNext();
    EXPECT_EQ(row(), (QVariantList{8LL, 2.0, u"9"_s, u"text"_s, u""_s}));
}

TEST_F(DataFile, ofATranslationHasItsVerseIndex) {
    makeTranslation({{2, 1, 1}, {1, 1, 1}, {1, 1, 1}});
    Recordset cursor = openByVerse();
    const std::vector<QString> names = {u"ID"_s,    u"book"_s, u"chapter"_s,
                                        u"verse"_s, u"body"_s, u"note"_s};
    for (int field = 0; field < 6; ++field)
        EXPECT_EQ(cursor.Fields(field).Name(), names[static_cast<size_t>(field)]);
    EXPECT_EQ(walk(cursor), (std::vector<qlonglong>{2, 3, 1})) << "a doubled verse is kept";
}

TEST_F(DataFile, ofTopicsHasBothTables) {
    DataFileWriter writer(path());
    createTopicsSchema(writer);
    createInfoTable(writer);
    writer.insert(u"tblTopicName"_s, {QVariant(), u"faith"_s});
    writer.insert(u"tblData"_s, {1, 1, 45, 1, 17, u"The just shall live"_s});
    writer.insert(u"tblInfo"_s, {u"Topics"_s, u"own"_s, u"free"_s, u"2024"_s});
    writer.finish();
    Recordset topics = openDynaset(u"tblTopicName"_s);
    EXPECT_EQ(topics.Fields(u"unique"_s).Value(), QVariant(1LL));
    EXPECT_EQ(topics.Fields(u"topicname"_s).Value(), QVariant(u"faith"_s));
    EXPECT_EQ(openDynaset(u"tblData"_s).Fields(u"body"_s).Name(), u"body"_s);
    EXPECT_EQ(openDynaset(u"tblInfo"_s).Fields(u"licence"_s).Value(), QVariant(u"free"_s));
}

TEST_F(DataFile, thatIsFinishedTakesNothingMore) {
    DataFileWriter writer(path());
    createTranslationSchema(writer);
    writer.finish();
    EXPECT_EQ(errorOf([&] { writer.finish(); }), Error::AlreadyClosed);
    EXPECT_EQ(errorOf([&] { writer.execute("CREATE TABLE t (a)"); }), Error::AlreadyClosed);
    EXPECT_EQ(errorOf([&] { writer.insert(u"tblMain"_s, {}); }), Error::AlreadyClosed);
}

TEST_F(DataFile, refusesRowsThatDoNotFit) {
    DataFileWriter writer(path());
    createTranslationSchema(writer);
    EXPECT_EQ(errorOf([&] { writer.insert(u"tblMain"_s, {1}); }), Error::StorageFailure);
    EXPECT_EQ(errorOf([&] { writer.insert(u"tblNone"_s, {1}); }), Error::StorageFailure);
    EXPECT_EQ(
        errorOf([&] { writer.insert(u"tblMain\" VALUES (1); --"_s, {1}); }), Error::StorageFailure);
    EXPECT_EQ(errorOf([&] { writer.execute("no statement"); }), Error::StorageFailure);
}

TEST_F(DataFile, inAFolderThatDoesNotExistIsAnErrorWithTheName) {
    const QString file = path(u"nowhere/test.mdb"_s);
    const auto write = [&] { DataFileWriter writer(file); };
    EXPECT_EQ(errorOf(write), Error::StorageFailure);
    EXPECT_TRUE(errorTextOf(write).contains(u"test.mdb\""_s)) << errorTextOf(write).toStdString();
    EXPECT_EQ(files(), QStringList());
}

TEST_F(DataFile, thatCannotTakeItsPlaceIsAnErrorAndLeavesNothing) {
    QDir().mkpath(path(u"test.mdb/inside"_s));
    DataFileWriter writer(path());
    createTranslationSchema(writer);
    EXPECT_EQ(errorOf([&] { writer.finish(); }), Error::StorageFailure);
    EXPECT_EQ(files(), QStringList());
}

#ifdef Q_OS_UNIX

// Lets no file grow beyond a size, as a full disk would.
class SmallDisk {
public:
    explicit SmallDisk(rlim_t bytes) {
        m_signal = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit small = {bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~SmallDisk() {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_signal);
    }
    Q_DISABLE_COPY_MOVE(SmallDisk)

private:
    rlimit m_before{};
    void (*m_signal)(int) = nullptr;
};

TEST_F(DataFile, onAFullDiskIsAnErrorAndLeavesNothing) {
    const SmallDisk disk(200000);
    const auto write = [&] {
        DataFileWriter writer(path());
        createTranslationSchema(writer);
        for (int verse = 1; verse <= 3000; ++verse)
            writer.insert(
                u"tblMain"_s, {QVariant(), 1, 1, verse, u"body "_s.repeated(40), QVariant()});
        writer.finish();
    };
    EXPECT_EQ(errorOf(write), Error::StorageFailure);
    EXPECT_EQ(files(), QStringList());
}

TEST_F(DataFile, anUpdateOnAFullDiskIsAnErrorAndCanBeTriedAgain) {
    storeTuning().flushToDisk = true;
    makeTranslation({{1, 1, 1, u"old"_s}, {1, 1, 2, u"other"_s}});
    Recordset cursor = openByVerse();
    cursor.Edit();
    cursor.Fields(4) = u"new "_s.repeated(100000);
    {
        const SmallDisk disk(100000);
        EXPECT_EQ(errorOf([&] { cursor.Update(); }), Error::StorageFailure);
        EXPECT_EQ(openByVerse().Fields(4).Value(), QVariant(u"old"_s));
    }
    cursor.Update();
    EXPECT_EQ(cursor.Fields(4).Value().toString().size(), 400000);
    EXPECT_EQ(files(), QStringList{u"test.mdb"_s});
}

#endif

} // namespace
