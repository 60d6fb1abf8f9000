#include "search/SearchScope.h"

#include "basic/Error.h"
#include "core/BookNames.h"

void fillBookScope(ComboBox& books, const QString& allBooks) {
    books.Clear();
    books.AddItem(allBooks);
    books.AddItems(QStringList(BookNames.begin(), BookNames.end()));
    books.setListIndex(0);
}

void bookScopeChosen(const ComboBox& books, ComboBox& testament) {
    if (books.ListIndex() > 0)
        attempt([&] { testament.setListIndex(0); });
}

// The list of books is still empty when the window's loading selects the testament.
void testamentScopeChosen(const ComboBox& testament, ComboBox& books) {
    attempt([&] { books.setListIndex(0); });
    books.setEnabled(testament.ListIndex() < 1);
}
