#include "text/Apocrypha.h"

#include <QLatin1String>
#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int LastBook = 66;
constexpr int LastNumber = 99; // that texts give to such books

constexpr std::array Names{
    "Tob"_L1,
    "Tobit"_L1,
    "Jdt"_L1,
    "Judith"_L1,
    "EsthGr"_L1,
    "AddEsth"_L1,
    "ESG"_L1,
    "Greek Esther"_L1,
    "Esther (Greek)"_L1,
    "Additions to Esther"_L1,
    "Wis"_L1,
    "Wisdom"_L1,
    "Wisdom of Solomon"_L1,
    "Sir"_L1,
    "Sirach"_L1,
    "Ecclesiasticus"_L1,
    "Bar"_L1,
    "Baruch"_L1,
    "2Bar"_L1,
    "2BA"_L1,
    "2 Baruch"_L1,
    "4Bar"_L1,
    "EpJer"_L1,
    "LJE"_L1,
    "Letter of Jeremiah"_L1,
    "Epistle of Jeremiah"_L1,
    "AddDan"_L1,
    "DAG"_L1,
    "DanGr"_L1,
    "Additions to Daniel"_L1,
    "PrAzar"_L1,
    "SgThree"_L1,
    "S3Y"_L1,
    "Prayer of Azariah"_L1,
    "Sus"_L1,
    "Susanna"_L1,
    "Bel"_L1,
    "Bel and the Dragon"_L1,
    "1Macc"_L1,
    "1MA"_L1,
    "1 Maccabees"_L1,
    "2Macc"_L1,
    "2MA"_L1,
    "2 Maccabees"_L1,
    "3Macc"_L1,
    "3MA"_L1,
    "3 Maccabees"_L1,
    "4Macc"_L1,
    "4MA"_L1,
    "4 Maccabees"_L1,
    "1Esd"_L1,
    "1ES"_L1,
    "1 Esdras"_L1,
    "2Esd"_L1,
    "2ES"_L1,
    "2 Esdras"_L1,
    "4Ezra"_L1,
    "EZA"_L1,
    "5Ezra"_L1,
    "5EZ"_L1,
    "6Ezra"_L1,
    "6EZ"_L1,
    "PrMan"_L1,
    "MAN"_L1,
    "Prayer of Manasseh"_L1,
    "Prayer of Manasses"_L1,
    "AddPs"_L1,
    "PS2"_L1,
    "Ps151"_L1,
    "Psalm 151"_L1,
    "Odes"_L1,
    "ODA"_L1,
    "PssSol"_L1,
    "PSS"_L1,
    "Psalms of Solomon"_L1,
    "EpLao"_L1,
    "LAO"_L1,
    "Laodiceans"_L1,
    "1En"_L1,
    "ENO"_L1,
    "Enoch"_L1,
    "1 Enoch"_L1,
    "Jub"_L1,
    "Jubilees"_L1,
};

} // namespace

bool isApocryphal(QStringView name) {
    bool isNumber = false;
    const int number = name.toInt(&isNumber);
    if (isNumber)
        return number > LastBook && number <= LastNumber;
    return std::any_of(Names.begin(), Names.end(), [name](QLatin1String each) {
        return name.compare(each, Qt::CaseInsensitive) == 0;
    });
}
