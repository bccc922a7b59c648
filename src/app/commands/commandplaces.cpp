#include "app/commands/commandplaces.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>
#include <QMenuBar>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace {

/// What the names of the commands of menus begin with.
constexpr const char *Menus[] = {"file", "edit", "palette", "tiles", "map", "sprites", "image", "view", "help"};

/// What the names of all others begin with, and what people call that.
constexpr std::pair<const char *, const char *> Places[] = {
    {"window", QT_TRANSLATE_NOOP("CommandPlaces", "Window")},
    {"toolBars", QT_TRANSLATE_NOOP("CommandPlaces", "Tool Bars")},
    {"mapEditor", QT_TRANSLATE_NOOP("CommandPlaces", "Map Editor")},
    {"mapLayers", QT_TRANSLATE_NOOP("CommandPlaces", "Layers of the Map")},
    {"pixels", QT_TRANSLATE_NOOP("CommandPlaces", "Pixel Editors")},
    {"painting", QT_TRANSLATE_NOOP("CommandPlaces", "Pixel Editors")},
    {"animation", QT_TRANSLATE_NOOP("CommandPlaces", "Animation Editors")},
    {"animationList", QT_TRANSLATE_NOOP("CommandPlaces", "List of Animations")},
    {"tilePicker", QT_TRANSLATE_NOOP("CommandPlaces", "Tile Picker")},
    {"spriteList", QT_TRANSLATE_NOOP("CommandPlaces", "Sprites")},
    {"paletteEditor", QT_TRANSLATE_NOOP("CommandPlaces", "Palette Editor")},
    {"colours", QT_TRANSLATE_NOOP("CommandPlaces", "Palette Editor")},
};

QString plainTitle(const QMenu &menu)
{
    return menu.menuAction()->iconText();
}

/// The titles of the menus that lead to an action from the menu bar; empty when none do.
QString menuPath(const QAction &action)
{
    const QList<QObject *> owners = action.associatedObjects();
    for (const QObject *owner : owners) {
        const auto *menu = qobject_cast<const QMenu *>(owner);
        if (!menu)
            continue;
        const QList<QObject *> above = menu->menuAction()->associatedObjects();
        for (const QObject *one : above) {
            if (qobject_cast<const QMenuBar *>(one))
                return plainTitle(*menu);
        }
        if (const QString path = menuPath(*menu->menuAction()); !path.isEmpty())
            return QCoreApplication::translate("CommandPlaces", "%1 ▸ %2").arg(path, plainTitle(*menu));
    }
    return {};
}

/// Whether the keys of one count in a part of where those of the other do.
bool isWithin(const QAction &inner, const QAction &outer)
{
    const QList<QObject *> parts = inner.associatedObjects();
    const QList<QObject *> wholes = outer.associatedObjects();
    for (QObject *whole : wholes) {
        const auto *page = qobject_cast<QWidget *>(whole);
        for (QObject *part : parts) {
            auto *widget = qobject_cast<QWidget *>(part);
            if (page && widget && !qobject_cast<QMenu *>(part) && (page == widget || page->isAncestorOf(widget)))
                return true;
        }
    }
    return false;
}

} // namespace

QString CommandPlaces::placeOf(const Commands::Command &command)
{
    const QList<QAction *> actions = Commands::instance()->actionsOf(command.name);
    for (const QAction *action : actions) {
        if (const QString path = menuPath(*action); !path.isEmpty())
            return path;
    }
    const QString place = command.name.section(u'.', 0, 0);
    for (const auto &[name, text] : Places) {
        if (place == QLatin1String(name))
            return QCoreApplication::translate("CommandPlaces", text);
    }
    return {};
}

QList<Commands::Command> CommandPlaces::sorted(QList<Commands::Command> commands)
{
    QStringList order;
    for (const char *menu : Menus)
        order.append(QLatin1String(menu));
    for (const auto &place : Places)
        order.append(QLatin1String(place.first));
    std::ranges::stable_sort(commands, {}, [&order](const Commands::Command &command) {
        return order.indexOf(command.name.section(u'.', 0, 0));
    });
    return commands;
}

bool CommandPlaces::canMeet(const Commands::Command &a, const Commands::Command &b)
{
    if (a.isWindowWide || b.isWindowWide || a.name.section(u'.', 0, 0) == b.name.section(u'.', 0, 0))
        return true;
    const QList<QAction *> actions = Commands::instance()->actionsOf(a.name);
    const QList<QAction *> others = Commands::instance()->actionsOf(b.name);
    for (const QAction *action : actions) {
        for (const QAction *other : others) {
            if (isWithin(*action, *other) || isWithin(*other, *action))
                return true;
        }
    }
    return false;
}
