#include "basic/Error.h"
#include "richtext/RichTextPage.h"
#include "richtext/samplePages.h"

#include <QDir>
#include <QFile>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray contentOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly | QIODevice::Text)) << path.toStdString();
    return file.readAll();
}

struct FilesTest : testing::Test {
    QTemporaryDir folder;
    RichTextPage box;

    QString path(const QString& name) const { return folder.filePath(name); }
};

qint64 printedSize(const QString& path, const RichTextPage& box) {
    QPdfWriter printer(path);
    printer.setPageSize(QPageSize(QPageSize::A4));
    box.SelPrint(printer);
    return QFile(path).size();
}

int printedPages(const QString& path) {
    return int(contentOf(path).count("/Type /Page\n"));
}

} // namespace

TEST_F(FilesTest, plainTextIsWrittenInUtf8) {
    box.setText(u"ἀγάπη\ncaf\u00E9\n"_s);
    box.SaveFile(path(u"comment.doc"_s), RichTextPage::rtfText);
    EXPECT_EQ(contentOf(path(u"comment.doc"_s)), u"ἀγάπη\ncaf\u00E9\n"_s.toUtf8());
}

TEST_F(FilesTest, rtfIsWrittenUnlessTextIsAskedFor) {
    box.setTextRTF(psalmPage({u"Amen"_s}));
    box.SaveFile(path(u"page.rtf"_s));
    EXPECT_EQ(contentOf(path(u"page.rtf"_s)), box.TextRTF().toUtf8());
}

TEST_F(FilesTest, aFileIsReplacedWhole) {
    box.setText(u"a long first text"_s);
    box.SaveFile(path(u"a.txt"_s), RichTextPage::rtfText);
    box.setText(u"short"_s);
    box.SaveFile(path(u"a.txt"_s), RichTextPage::rtfText);
    EXPECT_EQ(contentOf(path(u"a.txt"_s)), "short");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{u"a.txt"_s});
}

TEST_F(FilesTest, thePathIsOneOfTheProgram) {
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"Out"_s));
    box.setText(u"x"_s);
    box.SaveFile(folder.path() + u"\\out\\a.txt"_s, RichTextPage::rtfText);
    EXPECT_EQ(contentOf(path(u"Out/a.txt"_s)), "x");
}

TEST_F(FilesTest, aFailureNamesTheFileAndTheReasonAndLeavesNothing) {
    box.setText(u"x"_s);
    const QString missing = folder.path() + u"\\missing\\a.txt"_s;
    try {
        box.SaveFile(missing, RichTextPage::rtfText);
        FAIL() << "no error";
    } catch (const Error& error) {
        EXPECT_EQ(error.number(), Error::PathAccess);
        EXPECT_TRUE(error.text().contains(missing));
        EXPECT_GT(error.text().size(), missing.size() + 40);
    }
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST_F(FilesTest, aFileThatCannotBeReplacedStaysAsItWas) {
    box.setText(u"x"_s);
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"a.txt"_s));
    EXPECT_THROW(box.SaveFile(path(u"a.txt"_s), RichTextPage::rtfText), Error);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries).size(), 1);
}

TEST_F(FilesTest, theSelectionIsPrintedOrElseEverything) {
    box.setTextRTF(psalmPage(longestPsalm()));
    printedSize(path(u"all.pdf"_s), box);
    EXPECT_GE(printedPages(path(u"all.pdf"_s)), 4);
    box.setSelStart(20);
    box.setSelLength(100);
    printedSize(path(u"part.pdf"_s), box);
    EXPECT_EQ(printedPages(path(u"part.pdf"_s)), 1);
}

TEST_F(FilesTest, printingChangesNothing) {
    box.setTextRTF(psalmPage({u"Amen"_s}));
    const QString before = box.TextRTF();
    EXPECT_GT(printedSize(path(u"a.pdf"_s), box), 0);
    EXPECT_EQ(box.TextRTF(), before);
    EXPECT_EQ(box.SelLength(), 0);
}
