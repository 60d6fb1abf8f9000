#include "reader/PageComposer.h"

#include "basic/Conversion.h"
#include "basic/Error.h"
#include "basic/Text.h"
#include "core/BookNames.h"
#include "core/Catalogue.h"
#include "core/GlobalCode.h"
#include "core/Settings.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QChar RedLetterMark(30);

// The prefix: the mark, three digits of the start, a separator, three digits of the length.
constexpr qsizetype TextPosition = 9;

qsizetype numberAt(const QString& text, qsizetype position) {
    return static_cast<qsizetype>(Val(Mid(text, position, 3)));
}

QString reddened(const QString& text) {
    const qsizetype start = numberAt(text, 2);
    const qsizetype length = numberAt(text, 6);
    const qsizetype end = TextPosition + start + length;
    return Mid(text, TextPosition, start) + u"\\cf2"_s + Mid(text, TextPosition + start, length)
           + u" \\cf1"_s + Mid(text, end);
}

QString decimal(double number) {
    return Trim(Str(number));
}

// Font table, colour table (1 the user's text colour, 2 the red of red letters) and font. The red's
// "\\blue\\0" reads as blue 0.
QString pageHeader() {
    const QString colorTable = u"{\\colortbl\\red0\\green0\\blue0;\\red"_s + decimal(TextRed)
                               + u"\\green"_s + decimal(TextGreen) + u"\\blue"_s + decimal(TextBlue)
                               + u";\\red255\\green0\\blue\\0"_s + u";}"_s;
    return u"{\\rtf1\\ansi\\deff0\\deftab720{\\fonttbl{\\f0\\fnil "_s + Trim(MainFontName)
           + u";}}"_s + colorTable + u"\\plain"_s + u"\\f0\\fs"_s + decimal(MainFontSize * 2)
           + u"\\cf1"_s;
}

// More braces close than were opened: what a verse text leaves open is closed with them.
const QString pageEnd = u" }}}}}}}}}}}}}}}}}}}}}}}}}}}}}"_s;

// Null equals nothing, not even Null.
bool areEqual(const QVariant& left, const QVariant& right) {
    return !isNull(left) && !isNull(right) && left == right;
}

QString verseHeading(const QString& indent) {
    QString heading;
    if (DisplayBook == 1)
        attempt([&] { heading += u"{\\b "_s + bookName(rsBible.Fields(1).Value()) + u"\\b0} "_s; });
    if (DisplayChapterVerse == 1) {
        attempt([&] {
            heading += indent + u"{\\b "_s + toText(rsBible.Fields(2).Value()) + u":"_s
                       + toText(rsBible.Fields(3).Value()) + u"\\b0} "_s;
        });
    }
    return heading;
}

QString verseText() {
    QString text;
    attempt([&] { text = RedLetterText(toText(rsBible.Fields(4).Value()), true); });
    return text + u" \\par "_s;
}

QString printedVerse() {
    return bookName(rsBible.Fields(1).Value()) + u' ' + toText(rsBible.Fields(2).Value()) + u':'
           + toText(rsBible.Fields(3).Value()) + u' '
           + RedLetterText(toText(rsBible.Fields(4).Value()), false) + u"\r\n"_s;
}

// The rows from the cursor to the end of its chapter, less one. Where the table ends with the
// chapter, the last row goes uncounted and the cursor lands one row later than it stood; the result
// of a query loses no row that way, or a single hit would not be seen.
int versesToChapterEnd() {
    qint16 count = 0;
    QVariant chapter;
    attempt([&] { chapter = rsBible.Fields(2).Value(); });
    bool inChapter = true;
    while (inChapter) {
        if (!attempt([] { rsBible.MoveNext(); }) || isBehindLastRow())
            break;
        attempt([&] { count = toInt16(count + 1); });
        inChapter = false;
        attempt([&] { inChapter = areEqual(rsBible.Fields(2).Value(), chapter); });
    }
    const bool wholeResult = InQuery == On && isBehindLastRow();
    for (int step = wholeResult ? -1 : 0; step < count; ++step)
        attempt([] { rsBible.MovePrevious(); });
    return wholeResult ? count : count - 1;
}

// The verses from the cursor on, up to and including number `last`. `shown` becomes the number of
// the verse behind them, or of the one that the table no longer had.
QString pageText(int last, int& shown) {
    QString text;
    QString headingIndent;
    for (shown = 0; shown <= last; ++shown) {
        returnToFirstRow();
        if (isBehindLastRow()) {
            attempt([] { rsBible.MoveLast(); });
            break;
        }
        text += verseHeading(headingIndent) + verseText();
        attempt([] { rsBible.MoveNext(); });
        headingIndent = DisplayIndent == 1 ? u"\\li200\\fi-200"_s : u"\\li0\\fi-0"_s;
    }
    return text;
}

} // namespace

ComposedPage composePage(bool WholeChapter) {
    ComposedPage page;
    const QString header = pageHeader();
    const int last = WholeChapter ? versesToChapterEnd() : VersesPerPage;
    page.rtf = header + pageText(last, page.shown) + pageEnd;
    return page;
}

QString composePlainPage() {
    QString text;
    for (int verse = 0; verse <= VersesPerPage; ++verse) {
        returnToFirstRow();
        if (isBehindLastRow()) {
            attempt([] { rsBible.MoveLast(); });
            break;
        }
        attempt([&] { text += printedVerse(); });
        attempt([] { rsBible.MoveNext(); });
    }
    return text;
}

QString RedLetterText(const QString& text, bool apply) {
    if (!text.startsWith(RedLetterMark))
        return text;
    QString result;
    if (apply && ShowRedLetter != 0)
        attempt([&] { result = reddened(text); });
    else if (text.size() < TextPosition - 1)
        return {}; // a broken prefix, with no text behind it
    else
        result = text.mid(TextPosition - 1);
    return result.isEmpty() ? text : result;
}

bool isBehindLastRow() {
    bool ended = true;
    attempt([&] { ended = rsBible.Eof(); });
    return ended;
}

bool returnToFirstRow() {
    bool before = false;
    attempt([&] { before = rsBible.Bof(); });
    if (before)
        attempt([] { rsBible.MoveFirst(); });
    return before;
}

void stepBack(int count) {
    for (int step = 0; step < count && !returnToFirstRow(); ++step)
        attempt([] { rsBible.MovePrevious(); });
    returnToFirstRow();
}

const QString& translationName() {
    return BibleShortName[static_cast<size_t>(CurrentBible)];
}
