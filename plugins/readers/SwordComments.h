// The entries of a SWORD commentary in OSIS mark-up, in the order of its verse scheme,
// introductions of books and chapters included.
#pragma once

#include "readers/VerseSource.h"

#include <QStringList>
#include <memory>
#include <optional>

struct CommentEntry {
    const Book* book;
    int chapter;  // 0 for the introduction of a book
    QString text; // with the mark-up
};

class SwordComments {
public:
    // Opens the commentary `name` in `folder` (the one that holds mods.d); nullptr where the folder
    // has no such module. Error::NotADatabase for a module of another kind, or one whose files are
    // missing or cut off. Of the two layouts of a commentary the one that the files have is read,
    // whatever the module's description says.
    static std::unique_ptr<SwordComments> open(const QString& folder, const QString& name);
    ~SwordComments();
    Q_DISABLE_COPY_MOVE(SwordComments)

    // The next entry; nothing behind the last one. An entry that serves several verses comes once,
    // at the first of them.
    std::optional<CommentEntry> next();

    double fraction() const; // of the scheme, 0 to 1
    SourceInfo info() const;

private:
    class State;
    explicit SwordComments(std::unique_ptr<State> state);

    std::unique_ptr<State> m_state;
};
