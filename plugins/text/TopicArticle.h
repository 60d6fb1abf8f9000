// The plain text of an article of a topical dictionary in TEI mark-up.
#pragma once

#include <QString>

// Each heading and each item of a list is a line, items indented under their heading by a dash.
// `headword` is left out where the article repeats it. Damaged mark-up gives one line of text.
QString readTopicArticle(const QString& headword, const QString& markup);
