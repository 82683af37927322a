// The names of all controls, as docs/names.md lists them, held against the running windows.

#include <fstream>
#include <map>
#include <memory>
#include <set>
#include <string>

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QRegularExpression>

#include "ui/main/MainFormFixture.h"
#include "ui/map/Gform.h"

namespace ui {
namespace {

using namespace Qt::StringLiterals;

// Caption by name.
using Names = std::map<std::string, std::string>;

QString CaptionOf(const QObject& object)
{
    if (const auto* const action = qobject_cast<const QAction*>(&object)) {
        return action->text();
    }
    if (const auto* const menu = qobject_cast<const QMenu*>(&object)) {
        return menu->title();
    }
    if (const auto* const button = qobject_cast<const QAbstractButton*>(&object)) {
        return button->text();
    }
    if (const auto* const group = qobject_cast<const QGroupBox*>(&object)) {
        return group->title();
    }
    const auto* const label = qobject_cast<const QLabel*>(&object);
    return label == nullptr ? QString() : label->text();
}

// A window of its own; its controls are listed apart.
bool IsWindow(const QObject& object)
{
    const auto* const widget = qobject_cast<const QWidget*>(&object);
    return widget != nullptr && widget->isWindow() && qobject_cast<const QMenu*>(widget) == nullptr;
}

bool LiesIn(const QObject& object, const QWidget& window)
{
    const QObject* owner = &object;
    while (owner != nullptr && !IsWindow(*owner)) {
        owner = owner->parent();
    }
    return owner == &window;
}

Names NamesOf(const QWidget& window)
{
    Names names;
    for (const QObject* const object : window.findChildren<QObject*>()) {
        const QString name = object->objectName();
        if (!name.isEmpty() && !name.startsWith(u"qt_"_s) && !name.startsWith(u'_')
            && LiesIn(*object, window)) {
            names[name.toStdString()] = CaptionOf(*object).toStdString();
        }
    }
    return names;
}

// The tables of the document: window by window, "| `name`, `name` | caption | meaning |". A caption
// that changes while the program runs is listed as "…".
std::map<std::string, Names> ListedNames()
{
    std::map<std::string, Names> listed;
    std::ifstream file(KOMPASSO_NAMES);
    std::string window;
    const QRegularExpression heading(uR"(^## .*`(\w+)`)"_s);
    const QRegularExpression row(uR"(^\| (`[^|]+`) \| (.*?) ?\| (.+) \|$)"_s);
    const QRegularExpression quoted(u"`(\\w+)`"_s);
    for (std::string line; std::getline(file, line);) {
        const QString text = QString::fromStdString(line);
        if (const auto match = heading.match(text); match.hasMatch()) {
            window = match.captured(1).toStdString();
        } else if (const auto entry = row.match(text); entry.hasMatch()) {
            for (const auto& name : quoted.globalMatch(entry.captured(1))) {
                listed[window][name.captured(1).toStdString()] = entry.captured(2).toStdString();
            }
        }
    }
    return listed;
}

class NamesTest : public MainFormFixture {
protected:
    void SetUp() override
    {
        MainFormFixture::SetUp();
        form = std::make_unique<Gform>(state, image, window, dialogs);
        form->setAttribute(Qt::WA_DeleteOnClose, false);
    }

    const QWidget& Window(const std::string& name)
    {
        if (name == "MainForm") {
            return window;
        }
        return name == "Gform" ? *form : *Find<QWidget>(name.c_str());
    }

    MapImage image;
    std::unique_ptr<Gform> form;
};

TEST_F(NamesTest, TheDocumentListsEveryControlOfEveryWindow)
{
    const std::map<std::string, Names> listed = ListedNames();
    ASSERT_EQ(listed.size(), 4U);
    for (const auto& [name, controls] : listed) {
        SCOPED_TRACE(name);
        const Names running = NamesOf(Window(name));
        for (const auto& [control, caption] : running) {
            EXPECT_TRUE(controls.contains(control))
                << "| `" << control << "` | " << caption << " |  | is not listed";
        }
        for (const auto& [control, caption] : controls) {
            const auto found = running.find(control);
            if (found == running.end()) {
                ADD_FAILURE() << control << " is listed, but not there";
            } else if (caption != "…") {
                EXPECT_EQ(found->second, caption) << control;
            }
        }
    }
}

}  // namespace
}  // namespace ui
