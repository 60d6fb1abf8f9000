// How the program has a Jet database converted. A script stands in for the tool.
#include "app/JetConversion.h"

#include "basic/Error.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

#ifdef Q_OS_UNIX

namespace {

class JetConversion : public testing::Test {
protected:
    ~JetConversion() override { QFile::remove(tool()); }

    static QString tool() {
        return QCoreApplication::applicationDirPath() + u"/lumenvia-plugins"_s;
    }

    static void writeTool(const QByteArray& commands) {
        QFile script(tool());
        ASSERT_TRUE(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\n" + commands + "\n");
        script.setPermissions(script.permissions() | QFile::ExeOwner);
    }

    void SetUp() override { writeFile("old"); }

    void writeFile(const QByteArray& content) const {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QString path() const { return m_folder.filePath(u"KJV of \"mine\" $HOME.mdb"_s); }
    QString log() const { return m_folder.filePath(u"log"_s); }

    int calls() const {
        QFile file(log());
        return file.open(QIODevice::ReadOnly) ? int(file.readAll().count('\n')) : 0;
    }

    QString refusal() const {
        try {
            convertJetDatabase(path());
        } catch (const Error& error) {
            EXPECT_EQ(error.number(), Error::NotADatabase);
            EXPECT_TRUE(error.text().contains(path())) << qPrintable(error.text());
            return error.text();
        }
        return {};
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(JetConversion, handsThePathOverAsItIs) {
    writeTool("[ \"$1\" = convert ] && [ -f \"$2\" ] && [ $# = 2 ] && echo \"$2\"");
    EXPECT_EQ(convertJetDatabase(path()), path());
}

TEST_F(JetConversion, opensWhatTheToolNames) {
    writeTool(
        "echo \"$2\" >> '" + QFile::encodeName(log()) + "'; echo '" + QFile::encodeName(log())
        + "'");
    EXPECT_EQ(convertJetDatabase(path()), log());
    EXPECT_EQ(convertJetDatabase(path()), log());
    EXPECT_EQ(calls(), 1) << "a file that stays as it is need not be converted twice";
}

TEST_F(JetConversion, convertsAnewAFileThatHasChanged) {
    writeTool(
        "echo \"$2\" >> '" + QFile::encodeName(log()) + "'; echo '" + QFile::encodeName(log())
        + "'");
    convertJetDatabase(path());
    writeFile("longer than before");
    convertJetDatabase(path());
    EXPECT_EQ(calls(), 2);
}

TEST_F(JetConversion, passesTheToolsWordsOn) {
    writeTool("echo 'kjv.mdb is damaged: table tblMain.' >&2; exit 1");
    EXPECT_TRUE(refusal().endsWith(u"kjv.mdb is damaged: table tblMain."_s));
}

TEST_F(JetConversion, aToolThatSaysNothingIsAnErrorToo) {
    writeTool("exit 1");
    EXPECT_TRUE(refusal().endsWith(u"lumenvia-plugins did not say why."_s));
    writeTool("exit 0");
    EXPECT_TRUE(refusal().endsWith(u"lumenvia-plugins did not say why."_s));
}

TEST_F(JetConversion, aToolThatDiesIsAnError) {
    writeTool("kill -SEGV $$");
    EXPECT_TRUE(refusal().contains(u"its reader gave up"_s));
}

TEST_F(JetConversion, aMissingToolIsNamed) {
    EXPECT_TRUE(refusal().contains(u"lumenvia-plugins is missing"_s));
}

TEST_F(JetConversion, readsNothingFromTheKeyboard) {
    writeTool("cat; echo \"$2\"");
    EXPECT_EQ(convertJetDatabase(path()), path());
}

#endif
