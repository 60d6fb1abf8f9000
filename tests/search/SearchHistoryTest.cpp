// The find bar alone adds to the visits; the other searches leave them as they are.
#include "core/Settings.h"
#include "search/HolyTextFindFixture.h"
#include "search/NoteSearchFixture.h"
#include "search/QueryFixture.h"
#include "search/SimpleFindFixture.h"

namespace {

// Forgets every visit, and expects none at the end.
template <class Fixture>
class WithoutVisits : public Fixture {
protected:
    void SetUp() override {
        Fixture::SetUp();
        HistoryBook.fill(0);
    }

    void TearDown() override { EXPECT_EQ(HistoryBook[0], 0.F); }
};

class SimpleFindVisits : public WithoutVisits<SimpleFindFixture> {};
class HolyTextFindVisits : public WithoutVisits<HolyTextFindFixture> {};
class QueryVisits : public WithoutVisits<QueryFixture> {};
class NoteSearchVisits : public WithoutVisits<NoteSearchFixture> {};

} // namespace

TEST_F(SimpleFindVisits, areNone) {
    inWindow([](frmSimpleFind& find) {
        search(find, u"begins"_s);
        press(find, Close);
    });
    EXPECT_EQ(listed(), u"Matthew 1 2"_s);
}

TEST_F(HolyTextFindVisits, areNone) {
    inWindow([](frmHolyTextFind& find) {
        search(find, u"begins"_s);
        press(find, Close);
    });
    EXPECT_EQ(listed(), u"Matthew 1 2"_s);
}

TEST_F(QueryVisits, areNone) {
    query(u"light"_s);
    endQuery();
    EXPECT_EQ(listed(), u"Genesis 1:2"_s);
}

TEST_F(NoteSearchVisits, areNone) {
    open([] {
        window().txtNoteSearch.setText(u"thought"_s);
        press(First);
        press(Close);
    });
    EXPECT_EQ(main().cboVerse.Text(), u"5"_s);
}
