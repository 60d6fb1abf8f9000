#include "controls/ToolBar.h"

#include "basic/Error.h"

#include <QHBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int Margin = 6;
constexpr int Spacing = 2;
constexpr QSize PictureSize(24, 24);

} // namespace

ToolBar::ToolBar(QWidget* parent, const ControlText& text, const QList<KeyedButton>& buttons)
    : Control(parent, text) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(Margin, Margin, Margin, Margin);
    row->setSpacing(Spacing);
    for (const KeyedButton& each : buttons) {
        const QString name = objectName() + u'(' + each.key + u')';
        const ControlText texts{name, each.caption, each.toolTip};
        auto button = std::make_unique<PictureButton>(this, texts, each.picture);
        button->setText(each.caption);
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        button->setIconSize(PictureSize);
        button->Click.handleWith([this, key = each.key] { ButtonClick.raise(key); });
        row->addWidget(button.get());
        m_buttons[each.key] = std::move(button);
    }
    row->addStretch();
}

PictureButton& ToolBar::Buttons(const QString& key) const {
    const auto found = m_buttons.find(key);
    if (found == m_buttons.end())
        throw Error(Error::SubscriptOutOfRange, u"There is no button \"%1\"."_s.arg(key));
    return *found->second;
}
