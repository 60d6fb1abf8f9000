// The command surface of the main window as tables: one row a button or menu item, no code.
#pragma once

#include "controls/Menu.h"

#include <QList>
#include <QString>

// A button of the tool bar. Buttons of one group stand together.
struct ToolBarButton {
    enum class Group { Output, Clipboard, Find, Searches, Tools };

    int index;
    Group group;
    QString toolTip;
    QString picture;
};

// In the order of the tool bar.
const QList<ToolBarButton>& toolBarButtons();

// The drop-down menus: the entry of the menu row, the array's name, its items.
struct MenuTable {
    int index; // in the menu row; 6 does not occur
    QString caption;
    QString name;
    QList<MenuRow> rows;
};

const QList<MenuTable>& mainMenus();

// The menu of a right click on the page; it stands in no row.
const MenuTable& popupMenu();

// Controls, by name, whose windows do not exist yet: seen, and not to be used.
const QStringList& comingCommands();
