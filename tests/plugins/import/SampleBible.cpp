#include "plugins/import/SampleBible.h"

using namespace Qt::StringLiterals;

QList<SampleVerse> littleBible() {
    using enum PartKind;
    return {
        {u"Gen"_s,
         u"1"_s,
         u"1"_s,
         {{Plain, u"In the beginning God"_s}, {Note, u"Or, gods"_s}, {Plain, u"created all."_s}},
         {},
         u"In the beginning God created all."_s},
        {u"Gen"_s,
         u"1"_s,
         u"2"_s,
         {{Plain, u"And darkness "_s}, {Added, u"was"_s}, {Plain, u" there & the waters’ face."_s}},
         {},
         u"And darkness was there & the waters' face."_s},
        {u"Gen"_s, u"2"_s, u"1"_s, {{Plain, u"Señor; \"x\", y|z"_s}}, {}, u"Señor; \"x\", y|z"_s},
        {u"Ps"_s,
         u"3"_s,
         u"1"_s,
         {{Divine, u"LORD"_s}, {Plain, u", how are they increased!"_s}},
         u"A Psalm of David."_s,
         u"A Psalm of David. LORD, how are they increased!"_s},
        {u"Ps"_s, u"3"_s, u"2"_s, {{Plain, u"Many there be."_s}}, {}, u"Many there be."_s},
        {u"Matt"_s,
         u"5"_s,
         u"3"_s,
         {{Red, u"Blessed"_s}, {Note, u"Or, happy"_s}, {Red, u" are they."_s}},
         {},
         u"\x1E"_s + u"000:017Blessed are they."_s},
        {u"Luke"_s,
         u"8"_s,
         u"45"_s,
         {{Plain, u"And Jesus said, "_s},
          {Red, u"Who touched me?"_s},
          {Plain, u" When all denied, Peter said."_s}},
         {},
         u"\x1E"_s + u"016:015And Jesus said, Who touched me? When all denied, Peter said."_s},
        {u"Rev"_s, u"22"_s, u"21"_s, {{Plain, u"Amen."_s}}, {}, u"Amen."_s},
    };
}

SampleVerse
plainVerse(const QString& book, const QString& chapter, const QString& verse, const QString& text) {
    return {book, chapter, verse, {{PartKind::Plain, text}}, {}, text};
}
