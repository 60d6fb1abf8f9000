// Where a search window stands while the reader looks at the page behind it.
#pragma once

class Form;

// Stands a window that is not shown yet in the lower right corner of the screen.
void placeInCorner(Form& window);
