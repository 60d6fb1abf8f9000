// The two lists with which a search window says what part of the Bible it looks through.
#pragma once

#include "controls/ComboBox.h"

// Fills a list of books with an entry for all of them, and selects it.
void fillBookScope(ComboBox& books, const QString& allBooks);

// A chosen book overrides the testament.
void bookScopeChosen(const ComboBox& books, ComboBox& testament);

// A chosen testament leaves no choice of a book.
void testamentScopeChosen(const ComboBox& testament, ComboBox& books);
