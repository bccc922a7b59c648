#pragma once

#include <QKeySequence>
#include <QList>
#include <QMenu>

/// The "Edit" menu: undo, and the clipboard commands of the editor in front.
class EditMenu : public QMenu
{
    Q_OBJECT

public:
    explicit EditMenu(QWidget *parent = nullptr);

    /// Puts the actions of the undo group on top, with the standard keys. Called once.
    void setUndoActions(QAction *undo, QAction *redo);

    /// Adds something that can be chosen or not, after all entries.
    void addChoice(QAction *choice);

public slots:
    /// Enables the clipboard entries, which an editor in front must be able to answer; off at first.
    void setClipboardEnabled(bool enabled);

signals:
    void cut();
    void copy();
    void paste();
    void selectAll();
    void selectNone();

private:
    void addClipboardCommand(const QString &name, const QString &text, const QString &icon,
                             QKeySequence::StandardKey keys, void (EditMenu::*chosen)());

    QList<QAction *> m_clipboardActions;
    bool m_hasChoices = false;
};
