// Books that some Bibles hold and the catalogue does not.
#pragma once

#include <QStringView>

// Whether a name (an OSIS id, a USFM id, an English name, or a number behind the 66) is one of
// them. Where a wrong book cannot be told from a slip of the pen otherwise, it tells.
bool isApocryphal(QStringView name);
