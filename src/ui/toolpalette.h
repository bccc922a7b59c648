#pragma once

#include "ui/enums.h"

#include <QHash>
#include <QKeySequence>
#include <QList>
#include <QWidget>

class QAction;
class QActionGroup;
class QToolButton;

/// A palette of icon buttons, one for each tool or action that the editor beside it offers.
///
/// The buttons are backed by actions, whose shortcuts work wherever the palette's actions() have been
/// added: an editor calls `addActions(palette->actions())` on itself to have them while it has the
/// keyboard. Exclusive tools are checked one at a time.
class ToolPalette : public QWidget
{
    Q_OBJECT

public:
    enum Kind {
        Command, ///< happens once a click
        Toggle, ///< on or off
        Tool, ///< exclusive: stays chosen until another tool is chosen
    };

    struct Entry
    {
        Quenmora::Ui::ToolButton button;
        QString icon; ///< a resource such as ":/Draw"
        QString text; ///< the tool tip and accessible name, without the shortcut
        Kind kind = Command;
        QList<QKeySequence> shortcuts; ///< the usual ones; the first is named in the tool tip
    };

    /// A vertical palette has two columns, and more where it is low; a horizontal one fills rows of the width it is
    /// given.
    explicit ToolPalette(Qt::Orientation orientation = Qt::Vertical, QWidget *parent = nullptr);

    /// The usual icon, text and kind of a button, without shortcuts.
    [[nodiscard]] static Entry entryOf(Quenmora::Ui::ToolButton button);

    /// Makes the actions of the buttons that are added from now on commands: with "mapEditor", that of RectangleFill is
    /// "mapEditor.rectangleFill".
    void nameCommands(const QString &place) { m_place = place; }

    /// Appends a button; a button that is there already is left alone. Returns its action.
    QAction *addEntry(const Entry &entry);
    QAction *addEntry(Quenmora::Ui::ToolButton button) { return addEntry(entryOf(button)); }

    /// The action of a button, null when the palette does not have it.
    [[nodiscard]] QAction *action(Quenmora::Ui::ToolButton button) const { return m_actions.value(button); }

    /// The exclusive tool that is chosen, _end_toggles when none is.
    [[nodiscard]] Quenmora::Ui::ToolButton mode() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

public slots:
    /// Checks the action of mode when it is an exclusive tool; emits nothing.
    void setMode(Quenmora::Ui::ToolButton mode);

    /// Does what a click on the button does, if it is enabled.
    void toggleAction(Quenmora::Ui::ToolButton mode);

    /// Checks or unchecks a checkable button and emits actionActivated() for it.
    void setActionChecked(Quenmora::Ui::ToolButton mode, bool checked);

    void setToolEnabled(Quenmora::Ui::ToolButton mode, bool enabled);

    /// Shows the state of the grid on its button; emits nothing.
    void setShowGridChecked(bool checked);

signals:
    /// A button was clicked, its shortcut pressed, or its state set by setActionChecked(). checked is
    /// the state after the click, false for a button that has none.
    void actionActivated(Quenmora::Ui::ToolButton action, bool checked);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    /// Lets the tool tip name the first key, also when people choose another.
    void showKeys(QAction *action, const QString &text);
    /// The size of a vertical palette with so many rows in its present columns.
    [[nodiscard]] QSize sizeOfRows(int rows) const;
    void place(int index);

    Qt::Orientation m_orientation;
    QString m_place;
    QActionGroup *m_tools;
    QHash<Quenmora::Ui::ToolButton, QAction *> m_actions;
    QList<QToolButton *> m_buttons;
    int m_columns;
};
