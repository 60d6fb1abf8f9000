#include "search/HitMarks.h"

#include <QScrollBar>

namespace {

const QColor MarkColor(0, 0, 255);

void markWord(RichTextBox& page, const QString& word) {
    const int end = static_cast<int>(page.Text().size());
    int start = 1;
    for (int place; (place = page.Find(word, start, end, 0)) != -1;) {
        page.setSelColor(MarkColor);
        page.setSelBold(true);
        page.setSelUnderline(true);
        start = place + static_cast<int>(word.size());
        page.setSelLength(0);
    }
}

// Hidden, a page is not painted after each mark. It shows again whatever happens.
class HiddenPage {
public:
    explicit HiddenPage(RichTextBox& page)
        : m_page(page) {
        m_page.setVisible(false);
    }
    ~HiddenPage() { m_page.setVisible(true); }
    Q_DISABLE_COPY_MOVE(HiddenPage)

private:
    RichTextBox& m_page;
};

} // namespace

void markHits(RichTextBox& page, const std::array<QString, 2>& words) {
    {
        const HiddenPage hidden(page);
        for (const QString& word : words) {
            if (!word.isEmpty())
                markWord(page, word);
        }
    }
    // The last mark would draw the view to itself, away from the verse that was found.
    page.setSelStart(1);
    page.verticalScrollBar()->setValue(0);
}
