#include "readers/DataLines.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class DataLinesTest : public testing::Test {
protected:
    QString write(const QByteArray& content) {
        QFile file(folder.filePath(u"years.txt"_s));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }

    QString errorOf(const QByteArray& content) {
        try {
            DataLines lines(write(content), 2);
            while (lines.next()) {
            }
        } catch (const Error& error) {
            return error.text();
        }
        return {};
    }

    QTemporaryDir folder;
};

} // namespace

TEST_F(DataLinesTest, yieldsTheFieldsOfEachRow) {
    DataLines lines(write("# years\n\n4004\tGod creates\r\n5\t Jesus ist ge\xC3\xB6\n"), 2);
    EXPECT_EQ(lines.next(), QStringList({u"4004"_s, u"God creates"_s}));
    EXPECT_EQ(lines.next(), QStringList({u"5"_s, u"Jesus ist geö"_s}));
    EXPECT_FALSE(lines.next());
}

TEST_F(DataLinesTest, aRowOfAnotherNumberOfFieldsIsAnErrorWithFileAndLine) {
    EXPECT_EQ(errorOf("# a\n1\tx\n2 y\n"), u"years.txt:3: 1 field(s) where 2 are expected"_s);
    EXPECT_EQ(errorOf("1\tx\ty\n"), u"years.txt:1: 3 field(s) where 2 are expected"_s);
}

TEST_F(DataLinesTest, anEmptyFieldIsAnError) {
    EXPECT_EQ(errorOf("1\t \n"), u"years.txt:1: an empty field"_s);
}

TEST_F(DataLinesTest, aMissingFileIsAnError) {
    EXPECT_THROW(DataLines(folder.filePath(u"none.txt"_s), 2), Error);
}
