#include "core/Catalogue.h"

#include "Configuration.h"
#include "core/GlobalCode.h"
#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

namespace {

struct Row {
    QStringView file;
    QStringView shortName;
    QStringView longName;
    QStringView page;
};

constexpr Row expected[] = {
    {u"nasb.mdb", u"ASB", u"ASB", u"/plugins/nasb.htm"},
    {u"4NAV.mdb", u"NAV", u"NAV", u"/Xinfo.htm"},
    {u"KJV.mdb", u"King James", u"KJV - King James Version", u"/plugins/kjv.htm"},
    {u"RSV.mdb", u"RSV", u"RSV - Revised Standard Version", u"/plugins/rsv.htm"},
    {u"mkjv.mdb", u"A Modern KJV", u"MKJV - A Modern King James Version", u"/plugins/mkjv.htm"},
    {u"DARBY.mdb", u"Darby", u"Darby's Modern Translation", u"/plugins/darby.htm"},
    {u"YLT.mdb", u"YLT", u"YLT - Young's Literal Translation", u"/plugins/ylt.htm"},
    {u"latin.mdb", u"Latin (Vulgate)", u"Latin - Vulgate", u"/plugins/latin.htm"},
    {u"Spanish.mdb", u"Español (Spanish RVA)", u"Español - (Spanish RVA)", u"/plugins/spanish.htm"},
    {u"French.mdb", u"Français (French LSG)", u"Français (French LSG)", u"/plugins/french.htm"},
    {u"German.mdb", u"Deutsch (German Elberfelder)", u"Deutsch (German Elberfelder)",
     u"/plugins/german.htm"},
    {u"Dutchsvv.mdb", u"Hollands (Dutch SVV)", u"Hollands (Dutch SVV)", u"/plugins/dutchsvv.htm"},
    {u"Dutchlei.mdb", u"Hollands (Dutch (LEI)", u"Hollands (Dutch LEI)", u"/plugins/dutchlei.htm"},
    {u"", u"", u"Commentary", u"/plugins/comment.htm"},
    {u"", u"", u"Easton's Concordance", u"/plugins/concordance.htm"},
    {u"", u"", u"Greek Lexicon", u"/plugins/greek.htm"},
};

class Catalogue : public ProgramFixture {};

} // namespace

TEST_F(Catalogue, holdsSixteenRowsLetterForLetter) {
    ASSERT_EQ(std::size(expected), BibleFile.size());
    for (size_t row = 0; row < std::size(expected); ++row) {
        EXPECT_EQ(BibleFile[row], expected[row].file) << row;
        EXPECT_EQ(BibleShortName[row], expected[row].shortName) << row;
        EXPECT_EQ(BibleLongName[row], expected[row].longName) << row;
        EXPECT_EQ(BibleInfoUrl[row], configuration::HomeUrl + expected[row].page.toString()) << row;
    }
}

TEST_F(Catalogue, isTheSameAfterASecondFilling) {
    BibleFile[2] = u"/somewhere/KJV.mdb"_s;
    InitGlobals();
    InitGlobals();
    EXPECT_EQ(BibleFile[2], u"KJV.mdb"_s);
    EXPECT_EQ(BibleShortName[12], u"Hollands (Dutch (LEI)"_s);
}
