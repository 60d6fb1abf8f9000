// Writes a small SWORD module as most installed ones are: compressed, a block a book.
#pragma once

#include "plugins/SmallModule.h"

void writeCompressed(const SmallModule& module, const QString& folder);
