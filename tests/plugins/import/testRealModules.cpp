// The installed texts, where they are.
#include "plugins/import/ImportFixture.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

struct InstalledModule {
    const char* name;
    const char* description;
    int verses;
};

void PrintTo(const InstalledModule& module, std::ostream* stream) {
    *stream << module.name;
}

class InstalledModuleTest : public ImportTest,
                            public testing::WithParamInterface<InstalledModule> {};

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Each, InstalledModuleTest,
    testing::Values(
        InstalledModule{"KingJames", "engKJV2006eb.conf", 31102},
        InstalledModule{"Spanish", "spaRV1909eb.conf", 31084}));

TEST_P(InstalledModuleTest, passesTheChecksAndGivesAllItsVerses) {
    const QString description =
        u"/usr/share/sword/mods.d/"_s + QString::fromLatin1(GetParam().description);
    if (!QFileInfo::exists(description))
        GTEST_SKIP() << "the package is not installed";
    ASSERT_TRUE(import(description)) << qPrintable(errors);
    EXPECT_TRUE(out.contains(u"DARBY.mdb: %1 rows, "_s.arg(GetParam().verses))) << qPrintable(out);
}
