// The translations and works that the program knows. One is present when its file can be found;
// nothing is registered anywhere.
#pragma once

#include <QString>
#include <array>

inline constexpr int CatalogueSize = 16;

// Rows 0 to 12 are translations; 13 to 15 are add-on works, which have neither file nor short name
// here and stand in the catalogue to be described and downloaded.
extern std::array<QString, CatalogueSize> BibleFile; // a bare name; the full path of the open one
extern std::array<QString, CatalogueSize> BibleShortName;
extern std::array<QString, CatalogueSize> BibleLongName;
extern std::array<QString, CatalogueSize> BibleInfoUrl;

// Fills the arrays anew.
void fillCatalogue();
