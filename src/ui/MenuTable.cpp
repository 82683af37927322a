#include "ui/MenuTable.h"

#include <QAction>
#include <QMenu>

#include "ui/Controls.h"

namespace ui {

void AddItems(QMenu* menu, std::initializer_list<MenuItem> items,
              const std::function<void()>& before)
{
    for (const MenuItem& item : items) {
        const QLatin1StringView name(item.name);
        if (item.caption.isEmpty()) {
            Named(menu->addSeparator(), name);
            continue;
        }
        QAction* const action = Named(menu->addAction(item.caption), name);
        action->setCheckable(item.checkable);
        action->setShortcut(item.shortcut);
        if (before) {
            QObject::connect(action, &QAction::triggered, action, before);
        }
        QObject::connect(action, &QAction::triggered, action, item.command);
    }
}

}  // namespace ui
