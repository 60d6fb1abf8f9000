// The menus of a window: arrays of items that handlers address by index, one array a drop-down.
#pragma once

#include "controls/ControlArray.h"

#include <QAction>
#include <QMenu>

class MenuItem : public QAction {
    Q_OBJECT

public:
    Event<> Click;

    MenuItem(QObject* parent, const QString& name, const QString& caption);

    // A shortcut that the first caption names behind blanks stands in the menu's column of
    // shortcuts. Blanks in a later one are its user's.
    QString Caption() const { return m_caption; }
    void setCaption(const QString& caption);
    bool Checked() const { return isChecked(); }

    // An item gets its check mark from the program alone; a click does not turn it.
    void setChecked(bool checked);
    bool Enabled() const { return isEnabled(); }
    bool Visible() const { return isVisible(); }

private:
    QString m_caption;
    bool m_checked = false;
};

// One row of a menu's table. A caption of "-" is a separator. A hidden item is never shown, but its
// shortcut works.
struct MenuRow {
    int index;
    QString caption;
    QString shortcut; // "Ctrl+N", or empty
    bool hidden = false;
};

class MenuArray : public ControlArray<MenuItem> {
public:
    // Fills `menu` with the rows; items are named `name` and the index in brackets. Shortcuts of
    // hidden items belong to `window`.
    MenuArray(QWidget* window, QMenu* menu, QString name, const QList<MenuRow>& rows);

    // Adds an invisible item at the menu's end, or takes an item away.
    // Error::SubscriptOutOfRange if the index is taken, or not there.
    MenuItem& Load(int index);
    void Unload(int index);

    QMenu* menu() const { return m_menu; }

private:
    MenuItem& addRow(const MenuRow& row);

    QWidget* m_window;
    QMenu* m_menu;
    QString m_name;
};
