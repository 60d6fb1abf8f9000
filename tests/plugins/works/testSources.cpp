// What is made of all sources together, and what is told where one is missing.
#include "plugins/SmallModule.h"
#include "plugins/works/SmallCommentary.h"
#include "plugins/works/SmallDictionary.h"
#include "plugins/works/SmallWordNet.h"
#include "plugins/works/WorkFixture.h"

#include "Works.h"

using namespace Qt::StringLiterals;

namespace {

struct Missing {
    const char* work;
    const char* module;
    const char* package;
};

class MissingSource : public WorkFixture, public testing::WithParamInterface<Missing> {};

} // namespace

INSTANTIATE_TEST_SUITE_P(
    OfEachWork, MissingSource,
    testing::Values(
        Missing{"kjv", "engKJV2006eb", "sword-text-kjv"},
        Missing{"spanish", "spaRV1909eb", "sword-text-sparv"},
        Missing{"comment", "MHCC", "sword-comm-mhcc"},
        Missing{"easton", "Nave", "sword-dict-naves"},
        Missing{"greek", "StrongsGreek", "sword-dict-strongs-greek"},
        Missing{"names", "StrongsHebrew", "sword-dict-strongs-hebrew"}));

TEST_P(MissingSource, isAnErrorThatNamesModuleAndPackage) {
    const Missing& missing = GetParam();
    const ToolRun run = make(QString::fromLatin1(missing.work));
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(
        run.errors.contains(u"The module %1 is not installed. Install the package %2,"_s.arg(
            QLatin1String(missing.module), QLatin1String(missing.package))))
        << qPrintable(run.errors);
    EXPECT_TRUE(filesIn(folder.path()).isEmpty());
}

class AllSources : public WorkFixture {
protected:
    void SetUp() override {
        SmallModule text;
        text.entries = {{"Gen 1:1", "In"}};
        text.writeTo(modules.path());
        text.name = u"spaRV1909eb"_s;
        text.writeTo(modules.path());
        SmallCommentary comments;
        comments.entries = {{"Gen 1:1", "one"}};
        comments.writeTo(modules.path());
        SmallDictionary dictionary;
        dictionary.entries = {{"00001", "<def>A; Abi, a man: - Abi.</def>"}};
        for (const QString& name : {u"Nave"_s, u"StrongsGreek"_s, u"StrongsHebrew"_s}) {
            dictionary.name = name;
            dictionary.writeTo(modules.path());
        }
        SmallWordNet().writeTo(dictionaries.path());
    }
};

TEST_F(AllSources, allMakesEveryWorkThatHasOne) {
    const ToolRun run = make(u"all"_s);
    EXPECT_EQ(run.exitCode, 0) << qPrintable(run.errors);
    for (const Work& work : works()) {
        const bool isThere = QFile::exists(folder.filePath(work.file));
        EXPECT_EQ(isThere, work.maker != nullptr) << work.file.data();
        EXPECT_EQ(run.out.contains(work.file + u": "_s), isThere) << work.file.data();
    }
    EXPECT_EQ(filesIn(folder.path()).size(), 9);
}

TEST_F(AllSources, everyFileSaysWhereItIsFrom) {
    make(u"all"_s);
    for (const QString& file : filesIn(folder.path())) {
        const QList<QVariantList> info = rowsOf(folder.filePath(file), u"tblInfo"_s);
        ASSERT_EQ(info.size(), 1) << qPrintable(file);
        for (const QVariant& field : info[0])
            EXPECT_FALSE(field.toString().isEmpty()) << qPrintable(file);
    }
}

TEST_F(AllSources, aReferenceWorkIsReplacedWholeByForce) {
    ASSERT_EQ(make(u"easton"_s).exitCode, 0);
    SmallDictionary dictionary;
    dictionary.entries = {{"NEW", "new"}};
    dictionary.writeTo(modules.path());
    EXPECT_TRUE(make(u"easton"_s).out.contains(u"is there already"_s));
    const ToolRun run = runTool(
        {u"make"_s, u"easton"_s, u"--force"_s, u"--from"_s, modules.path(), u"--to"_s,
         folder.path()});
    EXPECT_EQ(run.exitCode, 0);
    const QList<QVariantList> rows = rowsOf(folder.filePath(u"easton.mdb"_s), u"Easton"_s);
    ASSERT_EQ(rows.size(), 2);
    EXPECT_EQ(rows[1][1], u"NEW"_s);
}

class OwnTranslation : public WorkFixture {};

TEST_F(OwnTranslation, tellsHowToImportOneInsteadOfMakingIt) {
    for (const Work& work : works()) {
        if (work.maker)
            continue;
        const ToolRun run = make(work.name);
        EXPECT_EQ(run.exitCode, 1);
        EXPECT_TRUE(run.errors.contains(u"lumenvia-plugins import FILE --as "_s + work.name))
            << qPrintable(run.errors);
    }
    EXPECT_TRUE(filesIn(folder.path()).isEmpty());
}

TEST(Catalogue, holdsThirteenTranslationsAndSevenOtherWorks) {
    int translations = 0;
    int made = 0;
    for (const Work& work : works()) {
        translations += work.tables == "tblMain"_L1;
        made += work.maker != nullptr;
    }
    EXPECT_EQ(works().size(), 20U);
    EXPECT_EQ(translations, 13);
    EXPECT_EQ(made, 9);
}
