// Notes when programs die, and when two of them write at once.
#include "core/GlobalCode.h"
#include "support/OtherProgram.h"
#include "support/ProgramFixture.h"

#include <random>

using namespace Qt::StringLiterals;

namespace {

class NoteProcesses : public ProgramFixture {
protected:
    NoteProcesses() {
        qputenv("XDG_CONFIG_HOME", programFile(u"config"_s).toLocal8Bit());
        addTranslation(u"KJV.mdb"_s, sampleVerses());
    }
    ~NoteProcesses() override { qunsetenv("XDG_CONFIG_HOME"); }

    static std::unique_ptr<OtherProgram> typist(int verse, int keys) {
        const QStringList arguments{u"1"_s, u"1"_s, QString::number(verse), QString::number(keys)};
        return std::make_unique<OtherProgram>(u"note_typist"_s, arguments);
    }

    // What `keys` keys have typed.
    static QString typed(int keys) {
        QString text;
        for (int key = 0; key < keys; ++key)
            text += QChar(u'a' + key % 26);
        return text;
    }

    QString noteOf(int verse) const {
        Workspace workspace = DBEngine::CreateWorkspace(u"Bible"_s, u"Admin"_s, {});
        Database database = workspace.OpenDatabase(programFile(u"KJV.mdb"_s));
        Recordset rows = database.OpenRecordset(u"tblMain"_s, dbOpenTable);
        rows.Index(u"VerseIndex"_s);
        rows.Seek(u"="_s, 1, 1, verse);
        return rows.Fields(5).Value().toString();
    }
};

} // namespace

TEST_F(NoteProcesses, noKillBetweenKeysLosesWhatWasTyped) {
    std::mt19937 random(20);
    for (int round = 0; round < 200; ++round) {
        const int verse = 1 + round % 31;
        const auto program = typist(verse, 1000);
        for (int key = std::uniform_int_distribution(1, 12)(random); key > 0; --key)
            ASSERT_FALSE(program->readLine().isEmpty());
        const int reported = program->kill().last().toInt();
        const QString note = noteOf(verse);
        // The key that was on its way when the program died may be there or not.
        ASSERT_TRUE(note == typed(reported) || note == typed(reported + 1))
            << round << ": " << reported << " keys, " << note.toStdString();
    }
}

TEST_F(NoteProcesses, twoProgramsWriteNotesAtOnce) {
    constexpr int Keys = 100;
    const auto one = typist(3, Keys);
    const auto two = typist(4, Keys);
    EXPECT_TRUE(one->endsWell());
    EXPECT_TRUE(two->endsWell());
    EXPECT_EQ(noteOf(3), typed(Keys));
    EXPECT_EQ(noteOf(4), typed(Keys));
}
