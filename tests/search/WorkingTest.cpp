#include "search/frmWorking.h"

#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

namespace {

class Working : public ProgramFixture {};

} // namespace

TEST_F(Working, asksForAMomentOverAnEmptyBar) {
    const frmWorking window;
    EXPECT_EQ(window.Caption(), u"Working..."_s);
    EXPECT_EQ(window.lblWorking.Caption(), u"One Moment Please..."_s);
    EXPECT_LE(window.pbWorking.Value(), 0);
}

TEST_F(Working, comesUpWithoutTakingTheKeyboard) {
    frmWorking window;
    window.Show();
    EXPECT_TRUE(window.isVisible() && window.isLoaded());
    EXPECT_TRUE(window.testAttribute(Qt::WA_ShowWithoutActivating));
}
