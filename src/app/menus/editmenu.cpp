#include "app/menus/editmenu.h"

#include "app/platform.h"
#include "ui/commands.h"
#include "ui/svgiconengine.h"

EditMenu::EditMenu(QWidget *parent) : QMenu(tr("&Edit"), parent)
{
    addClipboardCommand(QStringLiteral("edit.cut"), tr("Cu&t"), QStringLiteral(":/Cut"), QKeySequence::Cut,
                        &EditMenu::cut);
    addClipboardCommand(QStringLiteral("edit.copy"), tr("&Copy"), QStringLiteral(":/Copy"), QKeySequence::Copy,
                        &EditMenu::copy);
    addClipboardCommand(QStringLiteral("edit.paste"), tr("&Paste"), QStringLiteral(":/Paste"), QKeySequence::Paste,
                        &EditMenu::paste);
    addSeparator();
    addClipboardCommand(QStringLiteral("edit.selectAll"), tr("Select &All"), QStringLiteral(":/SelectAll"),
                        QKeySequence::SelectAll, &EditMenu::selectAll);
    addClipboardCommand(QStringLiteral("edit.clearSelection"), tr("C&lear Selection"), QStringLiteral(":/SelectNone"),
                        QKeySequence::Deselect, &EditMenu::selectNone);
}

void EditMenu::addClipboardCommand(const QString &name, const QString &text, const QString &icon,
                                   QKeySequence::StandardKey keys, void (EditMenu::*chosen)())
{
    QAction *action = addAction(themedIcon(icon), text);
    action->setShortcuts(QKeySequence::keyBindings(keys) + Platform::keysWithoutStandard(keys));
    action->setShortcutContext(Qt::ApplicationShortcut); // floating docks are windows of their own
    action->setEnabled(false);
    connect(action, &QAction::triggered, this, chosen);
    Commands::add(action, name);
    m_clipboardActions.append(action);
}

void EditMenu::setUndoActions(QAction *undo, QAction *redo)
{
    undo->setShortcuts(QKeySequence::Undo);
    redo->setShortcuts(QKeySequence::Redo);
    undo->setIcon(themedIcon(QStringLiteral(":/Undo")));
    redo->setIcon(themedIcon(QStringLiteral(":/Redo")));
    Commands::add(undo, QStringLiteral("edit.undo"));
    Commands::add(redo, QStringLiteral("edit.redo"));
    QAction *first = actions().constFirst();
    insertActions(first, {undo, redo});
    insertSeparator(first);
}

void EditMenu::addChoice(QAction *choice)
{
    if (!m_hasChoices)
        addSeparator();
    m_hasChoices = true;
    addAction(choice);
}

void EditMenu::setClipboardEnabled(bool enabled)
{
    for (QAction *action : m_clipboardActions)
        action->setEnabled(enabled);
}
