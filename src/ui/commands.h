#pragma once

#include <QIcon>
#include <QKeySequence>
#include <QList>
#include <QMap>
#include <QObject>
#include <QPointer>
#include <QString>

class QAction;

/// The commands of the program, by names that never change: whatever the language is, and however often an editor is
/// opened.
///
/// A command is an action with a name, such as "file.save" or "mapEditor.draw": first where it belongs, then what it
/// does. Every editor of a kind has actions of the same names, which share their keys. Keys that a person chose are
/// kept here by name, so that actions which are made later get them, too. A command that was made once stays known
/// when its editor is closed.
class Commands : public QObject
{
    Q_OBJECT

public:
    using Keys = QList<QKeySequence>; ///< none when there is no key for it
    using Choices = QMap<QString, Keys>; ///< by name

    struct Command
    {
        QString name;
        QString text; ///< as people read it, without mnemonic
        QIcon icon;
        Keys usualKeys;
        bool isWindowWide = false; ///< else its keys count only while its editor has the keyboard
    };

    /// Those of this process.
    static Commands *instance();

    /// Makes an action with its usual keys that command, and gives it the keys that were chosen for it. Returns it.
    static QAction *add(QAction *action, const QString &name);
    /// The same for one that acts on what it was asked for at, as in the menu of a list: it has no keys.
    static QAction *addPointed(QAction *action, const QString &name);

    /// In the order in which they were made first.
    [[nodiscard]] QList<Command> all() const;
    /// Its actions that there are now, one an open editor.
    [[nodiscard]] QList<QAction *> actionsOf(const QString &name) const;
    [[nodiscard]] Keys keysOf(const QString &name) const;

    /// What was chosen instead of usual keys, also for commands that are not known yet.
    [[nodiscard]] const Choices &choices() const { return m_choices; }
    /// Replaces all choices.
    void choose(const Choices &choices);

signals:
    /// Other keys were chosen.
    void keysChanged();

private:
    using QObject::QObject;

    struct Entry
    {
        Command command;
        QList<QPointer<QAction>> actions;
    };

    void take(QAction *action, const QString &name);
    void applyKeys(const Entry &entry) const;

    QList<QString> m_names; ///< in their order
    QMap<QString, Entry> m_entries;
    Choices m_choices;
};
