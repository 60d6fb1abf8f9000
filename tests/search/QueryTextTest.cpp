// The whole SELECT text of a query, for every combination of boxes and lists.
#include "search/QueryText.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// The text written out anew, from a template in which ' stands for the double quote.
QString written(const QueryChoice& choice) {
    QString text =
        choice.wholeWords
            ? u"SELECT * FROM tblMain WHERE (((body like '* 1 *' OR body like '* 1,*' OR body "
              u"like '* 1.*' OR body like '* 1:*' OR body like '* 1;*')) "_s
            : u"SELECT * FROM tblMain WHERE (((body like '*1*')) "_s;
    if (choice.secondWord.isEmpty())
        text += u')';
    else {
        text += choice.both ? u" AND "_s : u" OR "_s;
        text += choice.wholeWords
                    ? u" ((BODY LIKE '* 2 *' or BODY LIKE '* 2.*' or BODY LIKE '* 2;*' or BODY "
                      u"LIKE '* 2:*' or BODY LIKE '* 2,*'))) "_s
                    : u" ((BODY LIKE '*2*'))) "_s;
    }
    text.replace(u'\'', u'"');
    text.replace(u" 1"_s, u' ' + choice.firstWord).replace(u"*1"_s, u'*' + choice.firstWord);
    text.replace(u" 2"_s, u' ' + choice.secondWord).replace(u"*2"_s, u'*' + choice.secondWord);
    if (choice.scope == 2)
        text += u" AND ((BOOK > 39)) "_s;
    if (choice.scope == 1)
        text += u" AND ((BOOK < 40)) "_s;
    if (choice.book > 0)
        text += u" AND ((BOOK=%1)) "_s.arg(choice.scope == 1 ? choice.book + 39 : choice.book);
    return text;
}

} // namespace

TEST(QueryText, isWrittenLetterForLetterForEveryChoice) {
    int count = 0;
    for (const QString& second : {QString(), u"hate"_s, u"love"_s}) {
        for (int boxes = 0; boxes < 4; ++boxes) {
            for (int scope = 0; scope < 3; ++scope) {
                for (int book = -1; book <= 66; ++book) {
                    const QueryChoice choice{u"love"_s,        second, (boxes & 1) != 0,
                                             (boxes & 2) != 0, scope,  book};
                    ASSERT_EQ(queryText(choice), written(choice));
                    ++count;
                }
            }
        }
    }
    EXPECT_EQ(count, 3 * 4 * 3 * 68);
}

TEST(QueryText, ofTwoWordsInTheOldTestamentReadsLikeThis) {
    EXPECT_EQ(
        queryText({u"W1"_s, u"W2"_s, true, false, 1, 0}),
        u"SELECT * FROM tblMain WHERE (((body like \"*W1*\"))  AND  ((BODY LIKE \"*W2*\")))  "
        u"AND ((BOOK < 40)) "_s);
}

TEST(QueryText, ofOneWholeWordInOneBookReadsLikeThis) {
    EXPECT_EQ(
        queryText({u"W"_s, {}, false, true, 0, 45}),
        u"SELECT * FROM tblMain WHERE (((body like \"* W *\" OR body like \"* W,*\" OR body like "
        u"\"* W.*\" OR body like \"* W:*\" OR body like \"* W;*\")) ) AND ((BOOK=45)) "_s);
}

TEST(QueryText, takesWhatIsTypedAsItStands) {
    EXPECT_EQ(
        queryText({u" a\"b' "_s, {}, false, false, 0, 0}),
        u"SELECT * FROM tblMain WHERE (((body like \"* a\"b' *\")) )"_s);
}
