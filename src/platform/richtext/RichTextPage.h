// A page of formatted text: shows RTF or plain text, finds in it, marks and saves it. The
// windows use it as RichTextBox, with the events of a control.
//
// Positions count from 0, in UTF-16 units, with one unit for a line end; lengths likewise. A
// position or length beyond the text is cut to it; a negative one is an Error
// (InvalidPropertyValue).
#pragma once

#include <QColor>
#include <QTextEdit>
#include <QTimer>
#include <optional>

class QPagedPaintDevice;
struct RichText;

class RichTextPage : public QTextEdit {
    Q_OBJECT

public:
    // Bits of Find's options.
    enum FindOption { rtfWholeWord = 2, rtfMatchCase = 4, rtfNoHighlight = 8 };
    enum FileFormat { rtfRTF = 0, rtfText = 1 };

    explicit RichTextPage(QWidget* parent = nullptr);

    // The RTF of what is shown, written anew. A text that is no RTF is shown as it stands. Each
    // setting of a text puts caret and view to its start and tells of one change.
    QString TextRTF() const;
    void setTextRTF(const QString& rtf);

    // Lines end in "\n"; "\r\n" and "\r" are accepted.
    QString Text() const;
    void setText(const QString& text);

    // The place of the first `text` that lies wholly in [start, end), which it selects, or -1,
    // which changes nothing. Without an end, to the end of the text. Case counts only with
    // rtfMatchCase; rtfNoHighlight selects nothing.
    int Find(const QString& text, int start = -1, int end = -1, int options = 0);

    int SelStart() const;
    int SelLength() const;
    QString SelText() const;
    void setSelStart(int start); // leaves nothing selected
    void setSelLength(int length);

    // Of the first selected character; with nothing selected, of what is typed next.
    QColor SelColor() const;
    bool SelBold() const;
    bool SelItalic() const;
    bool SelUnderline() const;

    // Of all that is selected; with nothing selected, of what is typed next, never of the text.
    void setSelColor(const QColor& color);
    void setSelBold(bool bold);
    void setSelItalic(bool italic);
    void setSelUnderline(bool underline);

    // How far, in twips, the lines of a paragraph stand in behind its first; of the paragraphs that
    // the selection touches.
    int SelHangingIndent() const;
    void setSelHangingIndent(int twips);

    // The same for the whole text and for each plain text that is set from now on.
    int HangingIndent() const { return m_hangingIndent; }
    void setHangingIndent(int twips);

    // The font of the whole text, and of each plain text that is set from now on. Sizes are points;
    // one that is not above 0 is an Error (InvalidPropertyValue).
    void setFontName(const QString& family);
    void setFontSize(double points);
    void setFontBold(bool bold);
    void setFontItalic(bool italic);

    QColor BackColor() const;
    void setBackColor(const QColor& color);

    // Locked, the text can be read, selected and copied, but not changed by the user.
    bool Locked() const { return isReadOnly(); }
    void setLocked(bool locked);

    // Prints the selection, or everything if nothing is selected.
    void SelPrint(QPagedPaintDevice& printer) const;

    // Writes the file whole or not at all, in UTF-8. `path` is a path of the program. A failure is
    // an Error (PathAccess) that names the file and the reason.
    void SaveFile(const QString& path, FileFormat format = rtfRTF) const;

Q_SIGNALS:
    // The text has changed, by the user or by code; a change of its formats alone is not told.
    void changed();

protected:
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    static int notNegative(int value, const QString& property);
    void fill(const RichText& content);
    void noteChange();
    QTextCursor selection() const;
    void select(int start, int length);
    QTextCharFormat selectedFormat() const;
    void formatSelection(const QTextCharFormat& change);
    void formatAll(const QTextCharFormat& change, const QFont& font);
    void gatherChanges();
    void applyChanges();
    void applyColors();

    mutable QString m_text;
    mutable bool m_textKnown = true;
    bool m_changingFormats = false;
    bool m_filling = false;
    int m_hangingIndent = 0;
    std::optional<QColor> m_backColor;

    // While the page is hidden, the selection lives here, inside an edit block: hundreds of marks
    // then cost one new layout.
    std::optional<QTextCursor> m_hiddenSelection;
    QTimer m_nextEvent;
};
