// What paging shall do, as plain arithmetic over a list of verses: where the page begins, which
// verses it shows, and where the cursor stands afterwards.
#pragma once

#include <QList>

struct PlainVerse {
    int book = 0;
    int chapter = 0;
    int verse = 0;

    bool operator==(const PlainVerse&) const = default;
};

class PagingModel {
public:
    PagingModel(const QList<PlainVerse>& verses, int versesPerPage)
        : m_verses(verses)
        , m_versesPerPage(versesPerPage) {}

    void seek(const PlainVerse& verse) { m_cursor = m_verses.indexOf(verse); }
    void compose();

    void pageDown(int multiplier);
    void pageUp(int multiplier);
    void down();
    void up();
    void nextBook();
    void previousBook();
    void nextChapter();
    void previousChapter();

    // The verse that the title names.
    const PlainVerse& top() const { return m_verses[m_top]; }
    const QList<PlainVerse>& page() const { return m_page; }
    const PlainVerse& cursor() const { return m_verses[m_cursor]; }

private:
    qsizetype countToChapterEnd();
    void seekChapter(int book, int chapter);

    QList<PlainVerse> m_verses;
    int m_versesPerPage;
    qsizetype m_cursor = 0; // -1 before the first, size behind the last
    qsizetype m_top = 0;
    QList<PlainVerse> m_page;
};
