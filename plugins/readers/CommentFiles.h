// The files of a compressed SWORD commentary. The library reads them by the layout that the
// module's description names and trusts them: a wrong name makes it read garbage.
#pragma once

#include <QString>

// The layouts differ in how an index keeps the length of an entry: in two bytes or in four.
enum class CommentLayout { ShortEntries, LongEntries };

// The layout that both testaments' files in `folder` have, each with an index for `oldPlaces` and
// `newPlaces` places. `block` is the letter of the files' names. Error::NotADatabase with what is
// wrong for files that are missing, cut off or of neither layout.
CommentLayout
layoutOfComments(const QString& folder, QChar block, qsizetype oldPlaces, qsizetype newPlaces);
