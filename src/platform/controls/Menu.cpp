#include "controls/Menu.h"

#include <QKeySequence>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

MenuItem::MenuItem(QObject* parent, const QString& name, const QString& caption)
    : QAction(parent) {
    setObjectName(name);
    static const QRegularExpression blanks(u" {3,}"_s);
    setCaption(caption);
    setText(QString(caption).replace(blanks, u"\t"_s));
    connect(this, &QAction::triggered, this, [this] {
        setChecked(m_checked);
        Click.raise();
    });
}

void MenuItem::setCaption(const QString& caption) {
    m_caption = caption;
    setText(caption);
}

void MenuItem::setChecked(bool checked) {
    m_checked = checked;
    setCheckable(checked);
    QAction::setChecked(checked);
}

MenuArray::MenuArray(QWidget* window, QMenu* menu, QString name, const QList<MenuRow>& rows)
    : m_window(window)
    , m_menu(menu)
    , m_name(std::move(name)) {
    for (const MenuRow& row : rows)
        addRow(row);
}

MenuItem& MenuArray::Load(int index) {
    if (contains(index))
        throw Error(Error::SubscriptOutOfRange, u"Object already loaded"_s);
    MenuItem& item = addRow({index, {}, {}});
    item.setVisible(false);
    return item;
}

void MenuArray::Unload(int index) {
    remove(index);
}

MenuItem& MenuArray::addRow(const MenuRow& row) {
    const QString name = m_name + u'(' + QString::number(row.index) + u')';
    MenuItem& item = add(row.index, std::make_unique<MenuItem>(m_window, name, row.caption));
    if (row.caption == u"-")
        item.setSeparator(true);
    if (!row.shortcut.isEmpty())
        item.setShortcut(QKeySequence::fromString(row.shortcut, QKeySequence::PortableText));
    if (row.hidden)
        m_window->addAction(&item);
    else
        m_menu->addAction(&item);
    return item;
}
