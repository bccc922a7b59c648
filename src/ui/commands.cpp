#include "ui/commands.h"

#include <QAction>
#include <QCoreApplication>

Commands *Commands::instance()
{
    static QPointer<Commands> only;
    if (!only)
        only = new Commands(QCoreApplication::instance()); // icons do not outlive the application
    return only;
}

QAction *Commands::add(QAction *action, const QString &name)
{
    instance()->take(action, name);
    return action;
}

QAction *Commands::addPointed(QAction *action, const QString &name)
{
    action->setObjectName(name);
    return action;
}

void Commands::take(QAction *action, const QString &name)
{
    action->setObjectName(name);
    Entry &entry = m_entries[name];
    if (entry.command.name.isEmpty()) {
        m_names.append(name);
        const bool isWindowWide =
            action->shortcutContext() == Qt::WindowShortcut || action->shortcutContext() == Qt::ApplicationShortcut;
        entry.command = {name, action->iconText(), action->icon(), action->shortcuts(), isWindowWide};
    }
    entry.actions.removeIf([](const QPointer<QAction> &known) { return !known; });
    entry.actions.append(action);
    if (m_choices.contains(name))
        action->setShortcuts(m_choices.value(name));
}

QList<Commands::Command> Commands::all() const
{
    QList<Command> commands;
    commands.reserve(m_names.size());
    for (const QString &name : m_names) {
        commands.append(m_entries.value(name).command);
        if (const QList<QAction *> actions = actionsOf(name); !actions.isEmpty())
            commands.last().text = actions.constFirst()->iconText(); // some change with what they act on
    }
    return commands;
}

QList<QAction *> Commands::actionsOf(const QString &name) const
{
    QList<QAction *> actions;
    for (const QPointer<QAction> &action : m_entries.value(name).actions) {
        if (action)
            actions.append(action);
    }
    return actions;
}

Commands::Keys Commands::keysOf(const QString &name) const
{
    return m_choices.value(name, m_entries.value(name).command.usualKeys);
}

void Commands::choose(const Choices &choices)
{
    if (choices == m_choices)
        return;
    m_choices = choices;
    for (const Entry &entry : std::as_const(m_entries))
        applyKeys(entry);
    emit keysChanged();
}

void Commands::applyKeys(const Entry &entry) const
{
    const Keys keys = keysOf(entry.command.name);
    for (const QPointer<QAction> &action : entry.actions) {
        if (action)
            action->setShortcuts(keys);
    }
}
