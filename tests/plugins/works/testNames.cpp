#include "plugins/works/SmallDictionary.h"
#include "plugins/works/WorkFixture.h"

#include "text/ProperNames.h"

using namespace Qt::StringLiterals;

namespace {

QByteArray hebrew(const QByteArray& definition) {
    return "<entryFree><orth>H</orth><pron>x</pron> <def>" + definition + "</def></entryFree>";
}

QByteArray greek(const QByteArray& sense, const QByteArray& usage) {
    return "<entryFree><orth type=\"trans\">w</orth> <def><orig>of Hebrew origin;</orig> " + sense
           + ":--" + usage + ". </def></entryFree>";
}

// "Abiel: meaning" for each name of a Hebrew definition with the number 22.
QStringList namesOf(const QByteArray& definition) {
    QStringList names;
    for (const ProperName& each :
         namesOfHebrewEntry(u"00022"_s, QString::fromUtf8(hebrew(definition))))
        names.append(each.name + u": "_s + each.meaning);
    return names;
}

class Names : public WorkFixture {
protected:
    // The meaning of a name in the file that is made.
    QString meaningOf(const QString& name) {
        hebrewNames.name = u"StrongsHebrew"_s;
        greekNames.name = u"StrongsGreek"_s;
        hebrewNames.writeTo(modules.path());
        greekNames.writeTo(modules.path());
        rows = made(u"names"_s, u"names.mdb"_s, u"tblnames"_s);
        for (const QVariantList& row : rows) {
            if (row[1] == name)
                return row[2].toString();
        }
        return {};
    }

    SmallDictionary hebrewNames;
    SmallDictionary greekNames;
    QList<QVariantList> rows;
};

} // namespace

TEST(ProperNames, aNameHasItsMeaningAndWhoBearsIt) {
    EXPECT_EQ(
        namesOf("From <ref>H1</ref> and <ref>H410</ref>; <hi>father</hi> (that is <hi>possessor"
                "</hi>) <hi>of God</hi>;<lb/> <hi>{Abiel}</hi> the name of two "
                "<hi>Israelites:</hi> - Abiel."),
        QStringList(u"Abiel: father (that is possessor) of God. Abiel, the name of two Israelites. "
                    u"[H22]"_s));
}

TEST(ProperNames, whatIsSaidTwiceStandsOnce) {
    EXPECT_EQ(
        namesOf("From <ref>H1</ref>; <hi>father</hi>; <hi>father</hi>; <hi>Abiel</hi>, an "
                "<hi>Israelite:</hi> - Abiel."),
        QStringList(u"Abiel: father. Abiel, an Israelite. [H22]"_s));
}

TEST(ProperNames, lostCommasAreRestored) {
    EXPECT_EQ(
        namesOf("Of uncertain derivation; bundle6<lb/> knot (that {is} {in} {all}) ({-less}) more; "
                "{Abi} Saul\xC2\xB4 s son, in Ps. H68 : H23: - Abi."),
        QStringList(u"Abi: bundle, knot (that is, in, all), (-less), more. Abi, Saul's son, in Ps. "
                    u"68:23. [H22]"_s));
}

TEST(ProperNames, eachSpellingIsAName) {
    const QStringList names =
        namesOf("From H1; father; {Abijah} a king: - {Abiah} {Abi-jah} Abijam.");
    ASSERT_EQ(names.size(), 3);
    EXPECT_TRUE(names[1].startsWith(u"Abi-jah: "_s));
}

TEST(ProperNames, aWordThatIsNoNameHasNone) {
    EXPECT_TRUE(namesOf("A primitive word; father: - {chief} father.").isEmpty());
    EXPECT_TRUE(namesOf("From H1; probably prolonged; a deity: - {God} god.").isEmpty());
    EXPECT_TRUE(namesOf("no usage at all").isEmpty());
}

TEST(ProperNames, aNameAmongOtherRenderingsIsOneIfTheMeaningNamesIt) {
    EXPECT_EQ(
        namesOf("From H1; humiliated; {Kenaan} a son of Ham: - {Canaan} {merchant} traffick."),
        QStringList(u"Canaan: humiliated. Kenaan, a son of Ham. [H22]"_s));
}

TEST(ProperNames, aCommonWordBehindANameLeavesItOne) {
    const GreekEntry peter =
        readGreekEntry(u"<orth type=\"trans\">Petros</orth><def><orig>apparently a primary "
                       u"word;</orig> a rock; as "
                       u"a name, Petrus:--Peter, rock. </def>"_s);
    const QList<ProperName> names = namesOfGreekEntry(u"04074"_s, peter);
    ASSERT_EQ(names.size(), 1);
    EXPECT_EQ(names[0].name, u"Peter"_s);
}

TEST(ProperNames, endingsInBracketsAreNamesOfTheirOwn) {
    const QList<ProperName> names = namesOfGreekEntry(
        u"02455"_s, readGreekEntry(QString::fromUtf8(greek("Judas", "Juda(-h, -s); Jude"))));
    ASSERT_EQ(names.size(), 4);
    EXPECT_EQ(names[2].name, u"Judas"_s);
    EXPECT_EQ(names[3].name, u"Jude"_s);
}

TEST(ProperNames, anOriginIsNoMeaning) {
    EXPECT_EQ(
        namesOf("(Chaldee); patrial from H895; a Babylonian: - Babylonia."),
        QStringList(u"Babylonia: a Babylonian. [H22]"_s));
    EXPECT_EQ(
        namesOf("The same as H940 {Buzi} an Israelite: - Buzi."),
        QStringList(u"Buzi: Buzi, an Israelite. [H22]"_s));
}

TEST(ProperNames, aBareReferenceIsNoMeaning) {
    EXPECT_TRUE(namesOf("(Chaldee); corresponding to H3566: - Cyrus.").isEmpty());
}

TEST(ProperNames, aLigatureIsAlsoSpeltOut) {
    const QList<ProperName> names = namesOfGreekEntry(
        u"02541"_s, readGreekEntry(QString::fromUtf8(greek("a Roman title", "C\xC3\xA6sar"))));
    ASSERT_EQ(names.size(), 2);
    EXPECT_EQ(names[0].name, u"Cæsar"_s);
    EXPECT_EQ(names[1].name, u"Caesar"_s);
    EXPECT_EQ(names[1].meaning, u"a Roman title. [G2541]"_s);
}

TEST_F(Names, bearersOfBothTestamentsShareARow) {
    hebrewNames.entries = {{"00022", hebrew("From H1; father; {Zabdi} a man: - Zabdi.")}};
    greekNames.entries = {{"00006", greek("Zabdi, a woman", "Zabdi")}};
    EXPECT_EQ(meaningOf(u"Zabdi"_s), u"father. Zabdi, a man. [H22] Zabdi, a woman. [G6]"_s);
}

TEST_F(Names, rowsAreSortedAndHoldTheProjectsAdditions) {
    hebrewNames.entries = {{"00022", hebrew("From H1; father; {Zabdi} a man: - Zabdi.")}};
    greekNames.entries = {{"00006", greek("Abel, a son", "Abel")}};
    EXPECT_TRUE(meaningOf(u"Armageddon"_s).startsWith(u"hill of Megiddo"_s));
    ASSERT_GT(rows.size(), 20);
    EXPECT_EQ(rows.first()[1], u"Abel"_s);
    EXPECT_EQ(rows.last()[1], u"Zabdi"_s);
    for (qsizetype row = 1; row < rows.size(); ++row)
        EXPECT_LT(
            rows[row - 1][1].toString().compare(rows[row][1].toString(), Qt::CaseInsensitive), 0);
}
