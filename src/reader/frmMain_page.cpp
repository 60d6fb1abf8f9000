// The page: from the position of the cursor to the text in the pane.
#include "basic/Conversion.h"
#include "basic/Error.h"
#include "core/GlobalCode.h"
#include "core/Settings.h"
#include "reader/PageComposer.h"
#include "reader/frmMain.h"
#include "richtext/FontFamilies.h"

using namespace Qt::StringLiterals;

namespace {

const QColor MarkColor(0, 0, 255);

QColor userColor(int red, int green, int blue) {
    const auto part = [](int value) { return std::clamp(value, 0, 255); };
    return {part(red), part(green), part(blue)};
}

} // namespace

void frmMain::UpDateBibleText(bool WholeChapter) {
    if (StartingUp == On || HoldUpdates == On)
        return;
    // Paging past the end shows an empty page that names the last verse.
    attempt([] {
        if (rsBible.Eof())
            rsBible.MoveLast();
    });
    showReference();
    setFontSize(MainFontSize);
    const ComposedPage page = composePage(WholeChapter);
    attempt([&] { txtMain.setTextRTF(page.rtf); });
    rewind(page.shown);
    ColorText();
    showNote();
    markFoundText();
}

void frmMain::showReference() {
    setCaption(
        u"Lumenvia Professional"_s + u" "_s + translationName() + u" ["_s + VerseReference()
        + u"] "_s);
    if (HideNotes == Off)
        lblCurrentNote.setCaption(u"Your note for: "_s + VerseReference());
}

// Puts the cursor to where the paging keys start from.
void frmMain::rewind(int shown) {
    if (InQuery == Off) {
        stepBack(VersesPerPage + 1);
        return;
    }
    for (int step = 0; step < shown - 1; ++step)
        attempt([] { rsBible.MovePrevious(); });
}

// The note of the row now under the cursor. The box is never quite empty.
void frmMain::showNote() {
    QString note = u" "_s;
    attempt([&] {
        const QVariant stored = rsBible.Fields(5).Value();
        if (isNull(stored))
            return;
        note = toText(stored);
        if (note.size() < 2)
            note += u' ';
    });
    txtNote.setText(note);
}

// The first place of the find bar's text on the page.
void frmMain::markFoundText() {
    if (txtFind.Text().isEmpty())
        return;
    txtMain.Find(txtFind.Text());
    txtMain.setSelBold(true);
    txtMain.setSelColor(MarkColor);
    txtMain.setSelLength(0);
}

// Marks the first two words of a query on the page.
void frmMain::ColorText() {
    if (InQuery == Off)
        return;
    showHourglass();
    // Hidden, the page is not painted after each mark.
    txtMain.setVisible(false);
    for (size_t word = 0; word < 2; ++word) {
        if (!QueryWords[word].isEmpty())
            attempt([&] { colorWord(QueryWords[word]); });
    }
    txtMain.setVisible(true);
    showNormalPointer();
    txtMain.SetFocus();
    txtMain.setSelStart(1);
    txtMain.setSelLength(1);
    txtMain.setSelLength(0);
}

void frmMain::colorWord(const QString& word) {
    const int end = static_cast<int>(txtMain.Text().size());
    int start = 1;
    for (int place; (place = txtMain.Find(word, start, end, 0)) != -1;) {
        txtMain.setSelColor(MarkColor);
        txtMain.setSelBold(true);
        txtMain.setSelUnderline(true);
        start = place + static_cast<int>(word.size());
        txtMain.setSelLength(0);
    }
}

void frmMain::FormatText() {
    const QColor back = userColor(BackRed, BackGreen, BackBlue);
    txtMain.setBackColor(back);
    txtNote.setUpdatesEnabled(false);
    QFont font = txtNote.font();
    font.setFamily(availableFamily(MainFontName));
    font.setBold(MainBold != 0);
    font.setItalic(MainItalic != 0);
    font.setUnderline(MainUnderline != 0);
    if (isFontSize(MainFontSize))
        font.setPointSizeF(MainFontSize);
    txtNote.setFont(font);
    txtNote.setForeColor(userColor(TextRed, TextGreen, TextBlue));
    txtNote.setUpdatesEnabled(true);
    txtNote.setBackColor(back);
}

QString frmMain::FormatPrinterOutput() {
    const QString text = composePlainPage();
    stepBack(VersesPerPage + 1);
    return u"Bible translation used: "_s + translationName() + u"\r\n\r\n"_s + text;
}
