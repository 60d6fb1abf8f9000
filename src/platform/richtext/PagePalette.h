// The colours that go with a page whose back colour the program sets.
#pragma once

#include <QPalette>

// `system` with a text that reads on `back`, and a selection that stands out from it and reads, in
// a window that is active and in one that is not.
QPalette pagePalette(const QPalette& system, const QColor& back);

// The same three colours as `system` has them, for parts of the control that are no page.
QPalette systemPagePalette(const QPalette& system);
