// The verses of a file in USFM.
#pragma once

#include "readers/OpenMarkup.h"
#include "readers/TextLines.h"

class UsfmReader final : public VerseSource {
public:
    explicit UsfmReader(const QString& path);

    std::optional<Verse> next() override;
    double fraction() const override { return m_lines.fraction(); }
    QStringList remarks() const override;
    SourceInfo info() const override;

private:
    struct Marker;

    void readLine(QStringView line);
    QStringView readMarker(const Marker& marker, QStringView rest);
    void readMarkup(const Marker& marker);
    QStringView readPlace(const Marker& marker, QStringView rest);
    void startVerse(const QString& number);
    void openBlock(MarkupKind kind);
    void openInline(const Marker& marker, MarkupKind kind);
    void closeInline(QStringView name);
    void characters(QStringView text);
    void endNote();
    void closeAll();

    TextLines m_lines;
    VerseGathering m_verses;
    OpenMarkup m_open{m_verses};
    MarkupKind m_block = MarkupKind::Plain; // the paragraph in hand
    QStringList m_inline;                   // the markers that are open in it
    QString m_note;                         // the one that holds a note
    bool m_isInSidebar = false;
    bool m_isInMilestone = false;
    bool m_hasBook = false;
    bool m_isThrough = false;
    NameList m_endlessNotes;
};
