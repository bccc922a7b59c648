#pragma once

#include "ui/commands.h"

#include <QList>

#include <functional>

/// The keys of all commands while a person changes them: what the dialog shows, and what would be chosen.
class ShortcutTable
{
public:
    /// Whether two commands can be meant by one key press.
    using Meeting = std::function<bool(const Commands::Command &, const Commands::Command &)>;

    ShortcutTable(QList<Commands::Command> commands, Commands::Choices choices, Meeting canMeet);

    [[nodiscard]] const QList<Commands::Command> &commands() const { return m_commands; }
    [[nodiscard]] Commands::Keys keysOf(int command) const;
    /// Whether its keys are others than usual.
    [[nodiscard]] bool isChanged(int command) const;
    /// What a key would leave open: commands that have it, or one that begins with it or it begins with, and that can
    /// be meant in the same place.
    [[nodiscard]] QList<int> doublesOf(int command, const QKeySequence &key) const;
    [[nodiscard]] bool hasDoubles(int command) const;
    /// Whether one of its keys begins with these.
    [[nodiscard]] bool answersTo(int command, const QKeySequence &keys) const;

    /// Empty keys and repetitions are left out.
    void setKeys(int command, const Commands::Keys &keys);
    void removeKey(int command, const QKeySequence &key);
    void reset(int command);
    void resetAll();

    /// The differences from what is usual, and what was chosen for commands that are not known.
    [[nodiscard]] const Commands::Choices &choices() const { return m_choices; }

private:
    QList<Commands::Command> m_commands;
    Commands::Choices m_choices;
    Meeting m_canMeet;
};
