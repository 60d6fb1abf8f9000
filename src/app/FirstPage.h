// Runs that end with the first page: for machines without a display, and for measuring the start.
#pragma once

class QWidget;

// Whether the environment asks for such a run: LUMENVIA_PICTURE names the PNG file that gets a
// picture of the window; LUMENVIA_MEASURE prints the resident memory in KiB.
bool endsWithFirstPage();

// Waits until the window is painted and does what was asked; the exit code of the program.
int finishFirstPage(QWidget& window);
