// Puts verses together from the marks and words of a text in the order in which a reader meets
// them, whatever the format, and keeps in mind what the user should know of the reading.
#pragma once

#include "readers/BookEnds.h"
#include "readers/NameList.h"
#include "readers/VerseSource.h"
#include "text/MarkedText.h"

#include <QList>

class VerseGathering {
public:
    // `file` is the name by which errors call the text.
    explicit VerseGathering(QString file);

    // A book by any name that findBook knows; one that it does not is left out. Chapters and verses
    // as the text numbers them. A verse goes on until it is ended or anything else begins.
    void startBook(const QString& name);
    void startChapter(QStringView number);
    void startVerse(const QString& number);
    void endVerse();

    // A psalm's title, which goes in front of the chapter's first verse. In a verse it is text.
    void startTitle();
    void endTitle();

    // Words and what lies between them; dropped outside of verses and titles. Error::NotADatabase
    // for a verse that grows too long for one.
    void append(QStringView text, bool red);
    void append(const MarkedText& text);
    void separate();
    void markJoint();

    // The text is through.
    void finish();

    // The next verse that is complete.
    std::optional<Verse> take();

    bool isInVerse() const { return m_place == Place::Verse; }
    int book() const { return m_book ? m_book->number : 0; }
    QString placeName() const;
    QStringList remarks() const;

private:
    enum class Place { Outside, Title, Verse, LeftOut };

    void beginVerse(const VerseAddress& address);
    void leaveOut(NameList& names, const QString& number);
    void complete();
    void dropTitle();
    MarkedText* target();
    void checkLength(const MarkedText& text) const;

    QString m_file;
    QString m_bookName;
    const Book* m_book = nullptr;
    int m_chapter = 0;
    QString m_chapterName; // as the text writes it
    Place m_place = Place::Outside;
    VerseAddress m_address; // of the verse in hand
    bool m_hasVerse = false;
    MarkedText m_title;
    MarkedText m_text;
    QList<Verse> m_complete;

    NameList m_booksLeftOut;
    NameList m_unnumbered;
    NameList m_verseZeros;
    NameList m_zeroTitles;
    NameList m_ranges;
    NameList m_parts;
    NameList m_strays;
    BookEnds m_ends;
};
