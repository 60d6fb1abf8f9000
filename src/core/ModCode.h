// Routines of the tool windows.
#pragma once

#include <QString>

// Opens the help viewer at a topic, given as the text of its number.
void ShowHelp(const QString& topic);
