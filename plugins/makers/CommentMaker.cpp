#include "makers/CommentMaker.h"

#include "Progress.h"
#include "basic/Error.h"
#include "makers/InfoRow.h"
#include "store/DataFile.h"
#include "text/CommentText.h"

using namespace Qt::StringLiterals;

namespace {

// The chapter whose comment an entry belongs to.
struct Place {
    int book = 0;
    int chapter = 0;

    bool operator==(const Place&) const = default;
};

Place placeOf(const CommentEntry& entry) {
    return {entry.book->number, std::max(entry.chapter, 1)};
}

class CommentRows {
public:
    explicit CommentRows(DataFileWriter& writer)
        : m_writer(writer) {
        m_writer.execute(
            "CREATE TABLE tblComment (ID INTEGER PRIMARY KEY, book INTEGER, chapter INTEGER, "
            "comment TEXT)");
    }

    void add(const CommentEntry& entry) {
        if (placeOf(entry) != m_place)
            endChapter();
        m_place = placeOf(entry);
        if (!visitFragment(entry.text, m_text))
            ++m_damaged;
        m_text.endEntry();
    }

    void endChapter() {
        const QString comment = m_text.takeText();
        if (!comment.isEmpty())
            m_writer.insert(u"tblComment"_s, {++m_rows, m_place.book, m_place.chapter, comment});
    }

    qlonglong rows() const { return m_rows; }

    QStringList remarks() const {
        if (m_damaged == 0)
            return {};
        return {u"%1 comment(s) with damaged mark-up taken as plain text"_s.arg(m_damaged)};
    }

private:
    DataFileWriter& m_writer;
    CommentText m_text;
    Place m_place;
    qlonglong m_rows = 0;
    int m_damaged = 0;
};

} // namespace

MadeFile CommentMaker::make(const Order& order, Progress& progress) {
    DataFileWriter writer(order.path);
    CommentRows rows(writer);
    while (const std::optional<CommentEntry> entry = m_source->next()) {
        rows.add(*entry);
        progress.advance(m_source->fraction());
    }
    rows.endChapter();
    if (rows.rows() == 0)
        throw Error(Error::NotADatabase, u"%1 holds no comment."_s.arg(m_source->info().source));
    writeInfo(writer, m_source->info());
    writer.finish();
    return {rows.rows(), rows.remarks()};
}
