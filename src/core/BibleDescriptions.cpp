#include "core/BibleDescriptions.h"

#include <QStringList>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Description {
    QString heading;
    QString paragraph;
};

const std::array<Description, 10> descriptions = {{
    {u"King James Version (1611)"_s,
     u"The conference that King James I of England held at Hampton Court in 1604 resolved on a new "
     u"English Bible. Some fifty scholars, in six companies at Westminster, Oxford and Cambridge, "
     u"revised the Bishops' Bible against the Hebrew and Greek, with Tyndale and other earlier "
     u"versions beside them. Their New Testament follows the Greek text of the sixteenth-century "
     u"printed editions, later called the Received Text. The work appeared in 1611; the text "
     u"printed today is mostly that of the Oxford edition of 1769. Its measured language has "
     u"shaped English prose and worship ever since."_s},
    {u"Young's Literal Translation (1862)"_s,
     u"Robert Young, an Edinburgh printer and publisher who taught himself Hebrew and several "
     u"other "
     u"languages, published this translation in 1862 and revised it in 1887; a third edition "
     u"followed in 1898, ten years after his death. It rests on the traditional Hebrew text and "
     u"on the Greek of the Received Text. Young tried to give one English word for each word of "
     u"the original and to keep its order and its tenses, so that Hebrew narrative often stands "
     u"in the present. The result is uneven English, but it lets a reader see how the original "
     u"speaks."_s},
    {u"American Standard Version (1901)"_s,
     u"When British scholars revised the King James Version, a committee of American scholars "
     u"under "
     u"Philip Schaff advised them. The English Revised Version came out from 1881 to 1885 with "
     u"the remaining American preferences in an appendix. In 1901, after an agreed delay, the "
     u"Americans published an edition of their own that took these into the text. It follows "
     u"older Greek manuscripts than were known in 1611, holds closely to the wording of the "
     u"original, and writes the divine name as Jehovah throughout the Old Testament. It was long "
     u"valued for exact study."_s},
    {u"Darby Translation (1867 to 1890)"_s,
     u"John Nelson Darby, an early leader of the Plymouth Brethren, published his English New "
     u"Testament in 1867 and revised it later. He weighed the critical editions of the Greek text "
     u"of his day and gave his reasons in many footnotes. The Old Testament was completed by "
     u"others after his death in 1882, largely from the French and German Bibles that he had "
     u"helped to make, and the whole Bible was in print by 1890. Darby meant it for study beside "
     u"the King James Version rather than for public reading, and preferred exactness to style."_s},
    {u"Latin Vulgate (about 382 to 405)"_s,
     u"In 382 Pope Damasus I asked Jerome to revise the Old Latin Gospels against the Greek. "
     u"Jerome "
     u"went on to translate most of the Old Testament afresh from the Hebrew, a work that he ended "
     u"about 405; the usual Psalter is his revision from the Greek, and other hands revised the "
     u"rest of the New Testament. The Vulgate was the Bible of western Christendom for a thousand "
     u"years and, about 1455, the first large book printed with movable type in Europe. The "
     u"Council "
     u"of Trent declared it authoritative in 1546, and the edition of 1592 became its standard "
     u"text."_s},
    {u"Spanish: Reina-Valera Antigua"_s,
     u"Casiodoro de Reina, a Spanish monk who had turned Protestant and fled abroad, published the "
     u"first complete Spanish Bible translated from the original languages at Basel in 1569. It is "
     u"known as the Bible of the Bear, from the printer's mark on its title page. Cipriano de "
     u"Valera revised it at Amsterdam in 1602. The New Testament rests on the Greek of the "
     u"Received Text. Several revisions have followed; the name Antigua, the old one, commonly "
     u"means that of 1909. It has been the common Bible of Spanish-speaking Protestants for "
     u"generations."_s},
    {u"French: Louis Segond"_s,
     u"Louis Segond, a Protestant theologian of Geneva, translated the Old Testament from the "
     u"Hebrew "
     u"at the request of the Company of Pastors of his city; it appeared in 1874. His New "
     u"Testament, from the Greek, followed in 1880. He wanted a version that was independent of "
     u"the older French Bibles, faithful to the original and written in the good French of his "
     u"own time. The text was revised after his death and published in 1910. In that form it was "
     u"for most of the twentieth century the Bible best known to French-speaking Protestants."_s},
    {u"German: Elberfelder Bible"_s,
     u"This version came from the circle of the Brethren in Germany. Carl Brockhaus, Julius Anton "
     u"von "
     u"Poseck and John Nelson Darby made the New Testament, which appeared in 1855; the whole "
     u"Bible "
     u"followed in 1871. It is named after Elberfeld, the town where it was prepared, today a part "
     u"of Wuppertal. The translators used the critical editions of the Greek text and kept as near "
     u"to the wording of the originals as German allows, at the cost of an easy style. The older "
     u"editions write the divine name as Jehova."_s},
    {u"Dutch, modern text: Leidse vertaling (1899 to 1912)"_s,
     u"The Leiden translation was begun by Abraham Kuenen, professor at Leiden, with Isaac "
     u"Hooykaas, "
     u"Willem Hendrik Kosters and Henricus Oort. The Old Testament appeared from 1899 to 1901; "
     u"Oort, "
     u"the last of the four, brought out the New Testament in 1912. It applied the critical "
     u"scholarship of the nineteenth century: where the translators judged the transmitted text to "
     u"be faulty they followed other witnesses or their own correction, and introductions and "
     u"notes "
     u"explain their choices. Its Dutch is plain, and it was meant for readers at home more than "
     u"for the pulpit."_s},
    {u"Dutch, early text: Statenvertaling (1637)"_s,
     u"The Synod of Dort resolved in 1618 on the first Dutch Bible to be translated directly from "
     u"the "
     u"Hebrew, Aramaic and Greek, and asked the States General, the government of the Republic, to "
     u"pay for it; hence its name. The translators worked from 1626 to 1635, and the Bible "
     u"appeared "
     u"in 1637 with many notes in its margins. The New Testament follows the Greek of the Received "
     u"Text. The version is very literal, and its language did much to form standard Dutch. "
     u"Printed "
     u"texts today mostly modernize the spelling."_s},
}};

} // namespace

QString bibleDescriptions() {
    QStringList blocks;
    for (const Description& each : descriptions)
        blocks.append(each.heading + u'\n' + each.paragraph);
    return blocks.join(u"\n\n"_s);
}
