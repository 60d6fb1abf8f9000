// The formats of the selection and of the whole text, and the colours of the page.
#include "basic/Error.h"
#include "richtext/FontFamilies.h"
#include "richtext/PagePalette.h"
#include "richtext/RichDocument.h"
#include "richtext/RichTextPage.h"

#include <QApplication>
#include <QEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace {

QTextBlockFormat hangingFormat(int twips) {
    QTextBlockFormat format;
    format.setLeftMargin(pixelsFromTwips(twips));
    format.setTextIndent(-pixelsFromTwips(twips));
    return format;
}

} // namespace

// The format of a character is that of a cursor behind it.
QTextCharFormat RichTextPage::selectedFormat() const {
    QTextCursor cursor = selection();
    if (!cursor.hasSelection())
        return cursor.charFormat();
    cursor.setPosition(cursor.selectionStart() + 1);
    return cursor.charFormat();
}

QColor RichTextPage::SelColor() const {
    const QBrush brush = selectedFormat().foreground();
    return brush.style() == Qt::NoBrush ? palette().color(QPalette::Text) : brush.color();
}

bool RichTextPage::SelBold() const {
    return selectedFormat().font().resolve(font()).weight() >= QFont::DemiBold;
}

bool RichTextPage::SelItalic() const {
    return selectedFormat().font().resolve(font()).italic();
}

bool RichTextPage::SelUnderline() const {
    return selectedFormat().font().resolve(font()).underline();
}

void RichTextPage::setSelColor(const QColor& color) {
    QTextCharFormat change;
    change.setForeground(color);
    formatSelection(change);
}

void RichTextPage::setSelBold(bool bold) {
    QTextCharFormat change;
    change.setFontWeight(bold ? QFont::Bold : QFont::Normal);
    formatSelection(change);
}

void RichTextPage::setSelItalic(bool italic) {
    QTextCharFormat change;
    change.setFontItalic(italic);
    formatSelection(change);
}

void RichTextPage::setSelUnderline(bool underline) {
    QTextCharFormat change;
    change.setFontUnderline(underline);
    formatSelection(change);
}

void RichTextPage::formatSelection(const QTextCharFormat& change) {
    const QScopedValueRollback changing(m_changingFormats, true);
    gatherChanges();
    if (m_hiddenSelection)
        m_hiddenSelection->mergeCharFormat(change);
    else
        mergeCurrentCharFormat(change);
}

int RichTextPage::SelHangingIndent() const {
    return -twipsFromPixels(selection().blockFormat().textIndent());
}

void RichTextPage::setSelHangingIndent(int twips) {
    const QScopedValueRollback changing(m_changingFormats, true);
    applyChanges();
    textCursor().mergeBlockFormat(hangingFormat(notNegative(twips, u"SelHangingIndent"_s)));
}

void RichTextPage::setHangingIndent(int twips) {
    const QScopedValueRollback changing(m_changingFormats, true);
    m_hangingIndent = notNegative(twips, u"HangingIndent"_s);
    applyChanges();
    QTextCursor all(document());
    all.select(QTextCursor::Document);
    all.mergeBlockFormat(hangingFormat(twips));
}

void RichTextPage::setFontName(const QString& family) {
    QTextCharFormat change;
    setFamily(change, family);
    QFont changed = font();
    changed.setFamily(availableFamily(family));
    formatAll(change, changed);
}

void RichTextPage::setFontSize(double points) {
    if (points <= 0)
        throw Error(Error::InvalidPropertyValue, u"A font size cannot be %1."_s.arg(points));
    QTextCharFormat change;
    change.setFontPointSize(points);
    QFont changed = font();
    changed.setPointSizeF(points);
    formatAll(change, changed);
}

void RichTextPage::setFontBold(bool bold) {
    QTextCharFormat change;
    change.setFontWeight(bold ? QFont::Bold : QFont::Normal);
    QFont changed = font();
    changed.setBold(bold);
    formatAll(change, changed);
}

void RichTextPage::setFontItalic(bool italic) {
    QTextCharFormat change;
    change.setFontItalic(italic);
    QFont changed = font();
    changed.setItalic(italic);
    formatAll(change, changed);
}

void RichTextPage::formatAll(const QTextCharFormat& change, const QFont& font) {
    const QScopedValueRollback changing(m_changingFormats, true);
    applyChanges();
    setFont(font);
    QTextCursor all(document());
    all.select(QTextCursor::Document);
    all.mergeCharFormat(change);
}

QColor RichTextPage::BackColor() const {
    return m_backColor.value_or(palette().color(QPalette::Base));
}

void RichTextPage::setBackColor(const QColor& color) {
    m_backColor = color;
    applyColors();
}

// The back colour is the viewport's alone; text and selection are drawn with the box's own palette,
// which the scroll bars must not take over.
void RichTextPage::applyColors() {
    QPalette background;
    background.setColor(QPalette::Base, *m_backColor);
    viewport()->setPalette(background);
    setPalette(pagePalette(QApplication::palette(this), *m_backColor));
    for (QScrollBar* bar : {horizontalScrollBar(), verticalScrollBar()})
        bar->setPalette(systemPagePalette(QApplication::palette(bar)));
}

bool RichTextPage::event(QEvent* event) {
    const bool known = QTextEdit::event(event);
    if (event->type() == QEvent::ApplicationPaletteChange && m_backColor)
        applyColors();
    return known;
}
