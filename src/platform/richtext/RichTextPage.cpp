#include "richtext/RichTextPage.h"

#include "basic/Error.h"
#include "richtext/RichDocument.h"
#include "richtext/RtfReader.h"
#include "richtext/RtfWriter.h"
#include "richtext/TextSearch.h"

#include <QScopedValueRollback>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr double pageMargin = 20; // device-independent pixels

ParagraphStyle hanging(int twips) {
    return {.leftIndent = twips, .firstLineIndent = -twips};
}

} // namespace

RichTextPage::RichTextPage(QWidget* parent)
    : QTextEdit(parent) {
    setFrameShape(QFrame::NoFrame);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setAcceptRichText(false);
    setTabChangesFocus(true);
    document()->setDocumentMargin(pageMargin);
    connect(this, &QTextEdit::textChanged, this, &RichTextPage::noteChange);
    m_nextEvent.setSingleShot(true);
    connect(&m_nextEvent, &QTimer::timeout, this, &RichTextPage::applyChanges);
    fill(plainRichText({}));
}

// A change of formats leaves the text as it is known.
void RichTextPage::noteChange() {
    if (m_changingFormats || m_filling)
        return;
    m_textKnown = false;
    Q_EMIT changed();
}

int RichTextPage::notNegative(int value, const QString& property) {
    if (value < 0)
        throw Error(Error::InvalidPropertyValue, u"%1 cannot be %2."_s.arg(property).arg(value));
    return value;
}

QString RichTextPage::TextRTF() const {
    return writeRtf(*document());
}

void RichTextPage::setTextRTF(const QString& rtf) {
    fill(isRtf(rtf) ? readRtf(rtf) : plainRichText(rtf, hanging(m_hangingIndent)));
    Q_EMIT changed();
}

QString RichTextPage::Text() const {
    if (!m_textKnown)
        m_text = documentText(*document());
    m_textKnown = true;
    return m_text;
}

void RichTextPage::setText(const QString& text) {
    fill(plainRichText(text, hanging(m_hangingIndent)));
    Q_EMIT changed();
}

void RichTextPage::fill(const RichText& content) {
    applyChanges();
    const QScopedValueRollback filling(m_filling, true);
    // No text may meet the way of wrapping that it would take too long in.
    const bool endless = hasEndlessWord(content.text);
    setUpdatesEnabled(false);
    if (endless)
        setWordWrapMode(QTextOption::WrapAnywhere);
    fillDocument(*document(), content);
    if (!endless)
        setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setTextCursor(QTextCursor(document()));
    verticalScrollBar()->setValue(0);
    setUpdatesEnabled(true);
    m_textKnown = false;
}

int RichTextPage::Find(const QString& text, int start, int end, int options) {
    const QString all = Text();
    const TextSearch search{
        .wholeWord = (options & rtfWholeWord) != 0, .matchCase = (options & rtfMatchCase) != 0};
    const int place = int(findText(all, text, start, end < 0 ? all.size() : end, search));
    if (place >= 0 && !(options & rtfNoHighlight))
        select(place, int(text.size()));
    return place;
}

QTextCursor RichTextPage::selection() const {
    return m_hiddenSelection.value_or(textCursor());
}

int RichTextPage::SelStart() const {
    return selection().selectionStart();
}

int RichTextPage::SelLength() const {
    const QTextCursor selected = selection();
    return selected.selectionEnd() - selected.selectionStart();
}

QString RichTextPage::SelText() const {
    return Text().mid(SelStart(), SelLength());
}

void RichTextPage::setSelStart(int start) {
    select(notNegative(start, u"SelStart"_s), 0);
}

void RichTextPage::setSelLength(int length) {
    select(SelStart(), notNegative(length, u"SelLength"_s));
}

void RichTextPage::select(int start, int length) {
    gatherChanges();
    QTextCursor cursor = selection();
    const int size = document()->characterCount() - 1;
    const int first = std::min(start, size);
    cursor.setPosition(first);
    cursor.setPosition(first + std::min(length, size - first), QTextCursor::KeepAnchor);
    if (m_hiddenSelection)
        m_hiddenSelection = cursor;
    else
        setTextCursor(cursor);
}

// Changes to a page that nobody sees are laid out once, when it shows or at the next event.
void RichTextPage::gatherChanges() {
    if (isVisible() || m_hiddenSelection)
        return;
    m_hiddenSelection = textCursor();
    m_hiddenSelection->beginEditBlock();
    m_nextEvent.start(0);
}

void RichTextPage::applyChanges() {
    if (!m_hiddenSelection)
        return;
    const QScopedValueRollback changing(m_changingFormats, true);
    QTextCursor selected = *m_hiddenSelection;
    m_hiddenSelection.reset();
    selected.endEditBlock();
    setTextCursor(selected);
    m_textKnown = false;
}

void RichTextPage::showEvent(QShowEvent* event) {
    applyChanges();
    QTextEdit::showEvent(event);
}

void RichTextPage::setLocked(bool locked) {
    setReadOnly(locked);
    document()->setUndoRedoEnabled(!locked);
    if (locked)
        setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

// The wheel scrolls, also with Ctrl: the size of the text is a setting of the program.
void RichTextPage::wheelEvent(QWheelEvent* event) {
    event->setModifiers(event->modifiers() & ~Qt::ControlModifier);
    QTextEdit::wheelEvent(event);
}
