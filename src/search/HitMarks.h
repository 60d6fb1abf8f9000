// The marks of found words on the page: blue, bold and underlined.
#pragma once

#include "richtext/RichTextBox.h"

#include <array>

// Marks each place of both words, without regard to case, from the page's second character on. An
// empty word has none. The page is hidden meanwhile, and its view is back at the top afterwards.
void markHits(RichTextBox& page, const std::array<QString, 2>& words);
