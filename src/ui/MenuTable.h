// Menus as tables.

#pragma once

#include <functional>
#include <initializer_list>

#include <QKeySequence>
#include <QString>

class QMenu;

namespace ui {

struct MenuItem {
    const char* name = nullptr;
    QString caption = {};                    // empty: a separator line, which may have no name
    std::function<void(bool)> command = {};  // told whether the item is checked
    bool checkable = false;                  // keeps its own mark
    QKeySequence shortcut = {};
};

// Appends the items to a menu. `before`, if there is one, runs before every command.
void AddItems(QMenu* menu, std::initializer_list<MenuItem> items,
              const std::function<void()>& before = {});

}  // namespace ui
