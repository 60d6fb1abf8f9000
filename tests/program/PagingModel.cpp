#include "program/PagingModel.h"

#include <algorithm>

// How many verses follow in the chapter. At the table's end one is missed, and the cursor is then
// one verse further than it was.
qsizetype PagingModel::countToChapterEnd() {
    const int chapter = m_verses[m_cursor].chapter;
    const qsizetype start = m_cursor;
    qsizetype next = start + 1;
    while (next < m_verses.size() && m_verses[next].chapter == chapter)
        ++next;
    if (next < m_verses.size())
        return next - start - 1;
    m_cursor = start + 1;
    return next - start - 2;
}

void PagingModel::compose() {
    m_cursor = std::clamp<qsizetype>(m_cursor, 0, m_verses.size() - 1);
    m_top = m_cursor;
    m_page.clear();
    const qsizetype last = countToChapterEnd();
    for (qsizetype number = 0; number <= last && m_cursor < m_verses.size(); ++number)
        m_page.append(m_verses[m_cursor++]);
    m_cursor = std::max<qsizetype>(0, m_cursor - m_versesPerPage - 1);
}

void PagingModel::pageDown(int multiplier) {
    const int rows = m_versesPerPage * multiplier;
    if (rows <= 255)
        m_cursor = std::min<qsizetype>(m_cursor + rows + 1, m_verses.size());
    compose();
}

void PagingModel::pageUp(int multiplier) {
    const int rows = m_versesPerPage * multiplier;
    if (rows <= 255)
        m_cursor = std::max<qsizetype>(m_cursor - rows - 1, -1);
    compose();
}

void PagingModel::down() {
    ++m_cursor;
    compose();
}

void PagingModel::up() {
    --m_cursor;
    compose();
}

void PagingModel::seekChapter(int book, int chapter) {
    const qsizetype found = m_verses.indexOf({book, chapter, 1});
    m_cursor = found >= 0 ? found : m_top;
    compose();
}

void PagingModel::nextBook() {
    seekChapter(top().book + 1, 1);
}

void PagingModel::previousBook() {
    seekChapter(top().book - 1, 1);
}

void PagingModel::nextChapter() {
    seekChapter(top().book, top().chapter + 1);
}

void PagingModel::previousChapter() {
    seekChapter(top().book, top().chapter - 1);
}
