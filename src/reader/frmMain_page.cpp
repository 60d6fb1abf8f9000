// The page: from the position of the cursor to the text in the pane.
#include "basic/Conversion.h"
#include "basic/Error.h"
#include "core/GlobalCode.h"
#include "core/Settings.h"
#include "reader/PageComposer.h"
#include "reader/frmMain.h"
#include "richtext/FontFamilies.h"
#include "search/HitMarks.h"

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
    // Paging past the end shows an empty page that names the last verse; before the start, and
    // after a failed Seek, comes the first page from its first verse. Without a row the title would
    // draw a page of its own.
    attempt([] {
        if (rsBible.Eof())
            rsBible.MoveLast();
        else if (rsBible.Bof() || !currentVerseRow())
            rsBible.MoveFirst();
    });
    m_pageTop = currentVerseRow();
    showTitle(u"] "_s);
    if (HideNotes == Off)
        showNoteHeading();
    setFontSize(MainFontSize);
    const ComposedPage page = composePage(WholeChapter);
    attempt([&] { txtMain.setTextRTF(page.rtf); });
    rewind(page.shown);
    ColorText();
    showNote();
    markFoundText();
}

void frmMain::showTitle(const QString& end) {
    const QString title =
        u"Lumenvia Professional"_s + u" "_s + translationName() + u" ["_s + VerseReference() + end;
    if (title != Caption())
        setCaption(title);
}

// Puts the cursor to where the paging keys start from.
void frmMain::rewind(int shown) {
    if (InQuery == Off) {
        stepBack(VersesPerPage + 1);
        return;
    }
    for (int step = 0; step < shown - 1; ++step)
        attempt([] { rsBible.MovePrevious(); });
    // A page of the last hit alone would leave no row, and none for a note.
    if (isBehindLastRow())
        attempt([] { rsBible.MoveLast(); });
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
    attempt([this] { markHits(txtMain, {QueryWords[0], QueryWords[1]}); });
    showNormalPointer();
    txtMain.SetFocus();
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
