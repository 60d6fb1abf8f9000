// What the dialect takes and what it refuses. Every shape of text that the program writes is here.
#include "store/Criteria.h"

#include "StoreFixture.h"

#include <QElapsedTimer>
#include <QMap>

namespace {

using Kind = Criterion::Kind;

// A criteria tree written out with all its parentheses.
QString written(const Criterion& criterion) {
    static const QMap<Kind, QString> signs = {
        {Kind::And, u" & "_s}, {Kind::Or, u" | "_s},    {Kind::Equal, u"="_s},
        {Kind::Less, u"<"_s},  {Kind::Greater, u">"_s}, {Kind::Like, u"~"_s},
    };
    if (criterion.operands.empty()) {
        const bool isText = criterion.value.typeId() == QMetaType::QString;
        const QString value = criterion.value.toString();
        return criterion.field + signs[criterion.kind] + (isText ? u'\'' + value + u'\'' : value);
    }
    QStringList parts;
    for (const Criterion& operand : criterion.operands)
        parts += written(operand);
    return u'(' + parts.join(signs[criterion.kind]) + u')';
}

QString parsed(const QString& text) {
    return written(parseCriteria(text));
}

bool isRefused(const QString& text) {
    return errorOf([&] { parseCriteria(text); }) == Error::SyntaxInCriteria;
}

struct Shape {
    QString text;
    QString tree;
};

void expectShapes(const std::vector<Shape>& shapes) {
    for (const Shape& shape : shapes)
        EXPECT_EQ(parsed(shape.text), shape.tree) << shape.text.toStdString();
}

TEST(Criteria, numbersMayHaveBlanksAroundThem) {
    expectShapes({
        {u"ID = 5"_s, u"ID=5"_s},
        {u"ID =5"_s, u"ID=5"_s},
        {u" ID=5"_s, u"ID=5"_s},
        {u"ID =  5"_s, u"ID=5"_s},
        {u"ID=5"_s, u"ID=5"_s},
        {u"ID = 1"_s, u"ID=1"_s},
        {u"book =  12 "_s, u"book=12"_s},
        {u"\tbook\n=\r12"_s, u"book=12"_s},
    });
}

TEST(Criteria, numbersMayHaveSignPointAndExponent) {
    expectShapes({
        {u"a = -1"_s, u"a=-1"_s},
        {u"a=+1"_s, u"a=1"_s},
        {u"a = .5"_s, u"a=0.5"_s},
        {u"a = 1.5"_s, u"a=1.5"_s},
        {u"a = 2."_s, u"a=2"_s},
        {u"a = 1e3"_s, u"a=1000"_s},
        {u"a = 1E-1)"_s.chopped(1), u"a=0.1"_s},
    });
}

TEST(Criteria, anAddressIsThreeComparisons) {
    const QString tree = u"(book=1 & chapter=1 & verse=1)"_s;
    expectShapes({
        {u"book = 1 and chapter = 1 and verse = 1"_s, tree},
        {u"book =  1 and chapter =  1 and verse =  1"_s, tree},
        {u"BOOK = 1 AND CHAPTER = 1 AND VERSE = 1"_s, u"(BOOK=1 & CHAPTER=1 & VERSE=1)"_s},
        {u"book =  1 and chapter =  1"_s, u"(book=1 & chapter=1)"_s},
        {u"book = 40"_s, u"book=40"_s},
    });
}

TEST(Criteria, likeTakesATextInEitherQuotes) {
    expectShapes({
        {u"Body like '*light*'"_s, u"Body~'*light*'"_s},
        {u"note like '*light*'"_s, u"note~'*light*'"_s},
        {u"name like \"ab*\""_s, u"name~'ab*'"_s},
        {u"word like \"*\""_s, u"word~'*'"_s},
        {u"event like \"*flood*\""_s, u"event~'*flood*'"_s},
        {u"year like \"*70*\""_s, u"year~'*70*'"_s},
        {u"comment like \"*grace*\""_s, u"comment~'*grace*'"_s},
        {u"wordusage like '*love*'"_s, u"wordusage~'*love*'"_s},
        {u" (( body like \"*light*\"))"_s, u"body~'*light*'"_s},
        {u"body LIKE'*it''s'"_s.replace(u"''"_s, u" "_s), u"body~'*it s'"_s},
    });
}

TEST(Criteria, equalityTakesATextToo) {
    expectShapes({
        {u"name = \"Aaron\""_s, u"name='Aaron'"_s},
        {u"topicname = \"My topic\""_s, u"topicname='My topic'"_s},
        {u"year = \"70\""_s, u"year='70'"_s},
        {u"name=\"\""_s, u"name=''"_s},
        {u"name = 'it is \"so\"'"_s, u"name='it is \"so\"'"_s},
    });
}

// Simple search: whole word, scope by book and testament.
TEST(Criteria, aWholeWordIsFiveAlternatives) {
    const QString five = u"(body~'* sin *' | body~'* sin.*' | body~'* sin:*' | body~'* sin;*' | "
                         "body~'* sin,*')"_s;
    const QString text =
        u" ((body like \"* sin *\") or (body like \"* sin.*\") or (body like \"* sin:*\") or "
        "(body like \"* sin;*\") or (body like \"* sin,*\"))"_s;
    expectShapes({
        {text, five},
        {text + u" AND (book = 3)"_s, u"("_s + five + u" & book=3)"_s},
        {text + u" AND (book = 3) AND (book < 40)"_s, u"("_s + five + u" & book=3 & book<40)"_s},
        {text + u" AND (book > 39)"_s, u"("_s + five + u" & book>39)"_s},
    });
}

// Advanced search: two words, joined with two blanks, then the scope.
TEST(Criteria, twoWordsAreJoinedByAndOrOr) {
    expectShapes({
        {u" ((( body like \"*a*\"))  AND (( body like \"*b*\")))"_s,
         u"(body~'*a*' & body~'*b*')"_s},
        {u" ((( body like \"*a*\"))  OR (( body like \"*b*\")))"_s, u"(body~'*a*' | body~'*b*')"_s},
        {u" ((( body like \"*a*\"))) AND ((book = 3)) AND ((book < 40))"_s,
         u"(body~'*a*' & book=3 & book<40)"_s},
        {u" ((( body like \"*a*\"))) AND ((book > 39))"_s, u"(body~'*a*' & book>39)"_s},
    });
}

TEST(Criteria, andBindsTheLastOfUngroupedAlternativesOnly) {
    expectShapes({
        {u" ((body like \"* a *\") or (body like \"* a,*\")  AND ( (body like \"* b *\") or (body "
         "like \"* b,*\")))"_s,
         u"(body~'* a *' | (body~'* a,*' & (body~'* b *' | body~'* b,*')))"_s},
        {u"a = 1 or b = 2 and c = 3 or d = 4"_s, u"(a=1 | (b=2 & c=3) | d=4)"_s},
        {u"(a = 1 or b = 2) and c = 3"_s, u"((a=1 | b=2) & c=3)"_s},
    });
}

QString parsedSelect(const QString& text) {
    const SelectStatement statement = parseSelect(text);
    return statement.table + (statement.hasCriteria ? u" "_s + written(statement.criteria) : u""_s);
}

TEST(Criteria, everyQueryIsASelect) {
    const std::vector<Shape> shapes = {
        {u"SELECT * FROM tblMain WHERE (((body like \"*a*\")) )"_s, u"tblMain body~'*a*'"_s},
        {u"SELECT * FROM tblMain WHERE (((body like \"*a*\"))  AND  ((BODY LIKE \"*b*\")))  AND "
         "((BOOK < 40)) "_s,
         u"tblMain ((body~'*a*' & BODY~'*b*') & BOOK<40)"_s},
        {u"SELECT * FROM tblMain WHERE (((body like \"* a *\" OR body like \"* a,*\" OR body like "
         "\"* a.*\" OR body like \"* a:*\" OR body like \"* a;*\"))  OR  ((BODY LIKE \"* b *\" or "
         "BODY LIKE \"* b.*\" or BODY LIKE \"* b;*\" or BODY LIKE \"* b:*\" or BODY LIKE \"* "
         "b,*\")))  AND ((BOOK > 39))  AND ((BOOK=40)) "_s,
         u"tblMain (((body~'* a *' | body~'* a,*' | body~'* a.*' | body~'* a:*' | body~'* a;*') | "
         "(BODY~'* b *' | BODY~'* b.*' | BODY~'* b;*' | BODY~'* b:*' | BODY~'* b,*')) & BOOK>39 & "
         "BOOK=40)"_s},
        {u"select*from t"_s, u"t"_s},
        {u" Select  *  From  t  Where  a=1"_s, u"t a=1"_s},
    };
    for (const Shape& shape : shapes)
        EXPECT_EQ(parsedSelect(shape.text), shape.tree) << shape.text.toStdString();
}

TEST(Criteria, aSelectIsToldFromATableName) {
    EXPECT_TRUE(isSelect(u"SELECT * FROM t"_s));
    EXPECT_TRUE(isSelect(u"  select * from t"_s));
    EXPECT_FALSE(isSelect(u"tblMain"_s));
    EXPECT_FALSE(isSelect(u"selection"_s));
    EXPECT_FALSE(isSelect(QString()));
}

TEST(Criteria, aTypedQuoteBreaksATextOrEndsItEarly) {
    EXPECT_TRUE(isRefused(u"Body like '*it's*'"_s));
    EXPECT_TRUE(isRefused(u"Body like '*'*'"_s));
    EXPECT_TRUE(isRefused(u"name = \"a\"b\""_s));
    EXPECT_TRUE(isRefused(u"name = \"a"_s));
    EXPECT_EQ(parsed(u"name = \"a\" or name = \"b\""_s), u"(name='a' | name='b')"_s);
}

TEST(Criteria, whatIsOutsideTheDialectIsRefused) {
    for (const QString& text :
         {u""_s,
          u" "_s,
          u"ID"_s,
          u"ID ="_s,
          u"= 5"_s,
          u"5 = 5"_s,
          u"ID = 5 6"_s,
          u"ID = 5 and"_s,
          u"and ID = 5"_s,
          u"(ID = 5"_s,
          u"ID = 5)"_s,
          u"()"_s,
          u"ID == 5"_s,
          u"ID <> 5"_s,
          u"ID <= 5"_s,
          u"not ID = 5"_s,
          u"ID = 5 -- x"_s,
          u"ID = 5;"_s,
          u"ID = x"_s,
          u"ID = 5x"_s,
          u"ID = 0x10"_s,
          u"ID like 5"_s,
          u"like like 'a'"_s,
          u"and = 5"_s,
          u"ID = 'a' 'b'"_s,
          u"ID = 5or ID = 6"_s,
          u"ID = --5"_s,
          u"ID = 1e999"_s,
          u"ID = nan"_s,
          u"ID = inf"_s,
          u"[ID] = 5"_s,
          u"\"ID\" = 5"_s,
          u"ID = (5)"_s,
          u"ID is null"_s,
          u"ID"_s + QChar(u'\0'),
          u"ID = 5"_s + QChar(u'\0'),
          u"select * from t"_s})
        EXPECT_TRUE(isRefused(text)) << text.toStdString();
}

TEST(Criteria, whatIsOutsideTheDialectOfSelectIsRefused) {
    for (const QString& text :
         {u"SELECT"_s, u"SELECT *"_s, u"SELECT * FROM"_s, u"SELECT ID FROM t"_s,
          u"SELECT * FROM t WHERE"_s, u"SELECT * FROM t x"_s, u"SELECT * FROM t, u"_s,
          u"SELECT * FROM t ORDER BY ID"_s, u"SELECT * FROM t; DROP TABLE t"_s,
          u"SELECT * FROM (SELECT * FROM t)"_s, u"SELECT * FROM t WHERE a=1 UNION SELECT 1"_s,
          u"DELETE FROM t"_s})
        EXPECT_EQ(errorOf([&] { parseSelect(text); }), Error::SyntaxInCriteria)
            << text.toStdString();
}

TEST(Criteria, theErrorNamesThePlace) {
    const QString text = errorTextOf([] { parseCriteria(u"ID = 5 and !"_s); });
    EXPECT_TRUE(text.contains(u"character 12"_s)) << text.toStdString();
}

QString repeated(const QString& text, int count) {
    return text.repeated(count);
}

TEST(Criteria, parenthesesNestUpToTheLimit) {
    const auto nested = [](int depth) {
        return repeated(u"("_s, depth) + u"a=1"_s + repeated(u")"_s, depth);
    };
    EXPECT_EQ(parsed(nested(MaximumCriteriaDepth)), u"a=1"_s);
    EXPECT_TRUE(isRefused(nested(MaximumCriteriaDepth + 1)));
    EXPECT_TRUE(isRefused(repeated(u"("_s, 1000000)));
    EXPECT_EQ(
        parsed(nested(90) + u" and "_s + nested(90)), u"(a=1 & a=1)"_s); // side by side, not within
}

TEST(Criteria, chainsAreReadUpToTheLimit) {
    const auto chain = [](int count) { return u"a = 1"_s + repeated(u" or a = 1"_s, count - 1); };
    EXPECT_EQ(parseCriteria(chain(MaximumComparisons)).operands.size(), size_t(MaximumComparisons));
    EXPECT_TRUE(isRefused(chain(MaximumComparisons + 1)));
}

TEST(Criteria, aTextOfAMegabyteIsAnsweredAtOnce) {
    QElapsedTimer timer;
    timer.start();
    EXPECT_TRUE(isRefused(u"a = 1"_s + repeated(u" or a = 1"_s, 110000)));
    EXPECT_TRUE(isRefused(repeated(u"(a = 1 and "_s, 100000)));
    EXPECT_TRUE(isRefused(repeated(u"'"_s, 1000001)));
    EXPECT_EQ(parseCriteria(u"a = '"_s + repeated(u"x"_s, 1000000) + u"'"_s).kind, Kind::Equal);
    EXPECT_LT(timer.elapsed(), 20000) << "quadratic time would be many minutes";
}

} // namespace
