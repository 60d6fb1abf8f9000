// What word an inflected English form may belong to, by its ending, archaic endings included.
#pragma once

#include <QByteArray>
#include <QList>

enum class PartOfSpeech { Noun, Verb, Adjective, Adverb };

// The words that `form` may be a form of; a dictionary tells which of them exist.
QList<QByteArray> modernBases(PartOfSpeech part, const QByteArray& form);

// The verbs that `form` may belong to by the endings of "moveth", "movest" and "movedst". They tell
// less than the modern ones: "best" and "teeth" are words of their own.
QList<QByteArray> archaicBases(const QByteArray& form);
