#include "core/Catalogue.h"

#include "Configuration.h"

using namespace Qt::StringLiterals;

std::array<QString, CatalogueSize> BibleFile;
std::array<QString, CatalogueSize> BibleShortName;
std::array<QString, CatalogueSize> BibleLongName;
std::array<QString, CatalogueSize> BibleInfoUrl;

namespace {

struct CatalogueRow {
    QString file;
    QString shortName;
    QString longName;
    QString page; // behind the home page
};

// clang-format off
const std::array<CatalogueRow, CatalogueSize> rows = {{
    {u"nasb.mdb"_s, u"ASB"_s, u"ASB"_s, u"/plugins/nasb.htm"_s},
    {u"4NAV.mdb"_s, u"NAV"_s, u"NAV"_s, u"/Xinfo.htm"_s},
    {u"KJV.mdb"_s, u"King James"_s, u"KJV - King James Version"_s, u"/plugins/kjv.htm"_s},
    {u"RSV.mdb"_s, u"RSV"_s, u"RSV - Revised Standard Version"_s, u"/plugins/rsv.htm"_s},
    {u"mkjv.mdb"_s, u"A Modern KJV"_s, u"MKJV - A Modern King James Version"_s, u"/plugins/mkjv.htm"_s},
    {u"DARBY.mdb"_s, u"Darby"_s, u"Darby's Modern Translation"_s, u"/plugins/darby.htm"_s},
    {u"YLT.mdb"_s, u"YLT"_s, u"YLT - Young's Literal Translation"_s, u"/plugins/ylt.htm"_s},
    {u"latin.mdb"_s, u"Latin (Vulgate)"_s, u"Latin - Vulgate"_s, u"/plugins/latin.htm"_s},
    {u"Spanish.mdb"_s, u"Español (Spanish RVA)"_s, u"Español - (Spanish RVA)"_s, u"/plugins/spanish.htm"_s},
    {u"French.mdb"_s, u"Français (French LSG)"_s, u"Français (French LSG)"_s, u"/plugins/french.htm"_s},
    {u"German.mdb"_s, u"Deutsch (German Elberfelder)"_s, u"Deutsch (German Elberfelder)"_s, u"/plugins/german.htm"_s},
    {u"Dutchsvv.mdb"_s, u"Hollands (Dutch SVV)"_s, u"Hollands (Dutch SVV)"_s, u"/plugins/dutchsvv.htm"_s},
    {u"Dutchlei.mdb"_s, u"Hollands (Dutch (LEI)"_s, u"Hollands (Dutch LEI)"_s, u"/plugins/dutchlei.htm"_s},
    {{}, {}, u"Commentary"_s, u"/plugins/comment.htm"_s},
    {{}, {}, u"Easton's Concordance"_s, u"/plugins/concordance.htm"_s},
    {{}, {}, u"Greek Lexicon"_s, u"/plugins/greek.htm"_s},
}};
// clang-format on

} // namespace

void fillCatalogue() {
    for (size_t row = 0; row < rows.size(); ++row) {
        BibleFile[row] = rows[row].file;
        BibleShortName[row] = rows[row].shortName;
        BibleLongName[row] = rows[row].longName;
        BibleInfoUrl[row] = configuration::HomeUrl + rows[row].page;
    }
}
