#include "app/commands/shortcuttable.h"

#include <algorithm>
#include <utility>

namespace {

bool collide(const QKeySequence &a, const QKeySequence &b)
{
    return a.matches(b) != QKeySequence::NoMatch || b.matches(a) != QKeySequence::NoMatch;
}

} // namespace

ShortcutTable::ShortcutTable(QList<Commands::Command> commands, Commands::Choices choices, Meeting canMeet)
    : m_commands(std::move(commands))
    , m_choices(std::move(choices))
    , m_canMeet(std::move(canMeet))
{ }

Commands::Keys ShortcutTable::keysOf(int command) const
{
    const Commands::Command &asked = m_commands.at(command);
    return m_choices.value(asked.name, asked.usualKeys);
}

bool ShortcutTable::isChanged(int command) const
{
    return m_choices.contains(m_commands.at(command).name);
}

QList<int> ShortcutTable::doublesOf(int command, const QKeySequence &key) const
{
    QList<int> doubles;
    for (int other = 0; other < m_commands.size(); ++other) {
        const Commands::Keys keys = keysOf(other);
        if (other != command && std::ranges::any_of(keys, [&key](const auto &its) { return collide(key, its); })
            && m_canMeet(m_commands.at(command), m_commands.at(other)))
            doubles.append(other);
    }
    return doubles;
}

bool ShortcutTable::hasDoubles(int command) const
{
    const Commands::Keys keys = keysOf(command);
    return std::ranges::any_of(keys, [this, command](const auto &key) { return !doublesOf(command, key).isEmpty(); });
}

bool ShortcutTable::answersTo(int command, const QKeySequence &keys) const
{
    const Commands::Keys own = keysOf(command);
    return std::ranges::any_of(own, [&keys](const auto &key) { return keys.matches(key) != QKeySequence::NoMatch; });
}

void ShortcutTable::setKeys(int command, const Commands::Keys &keys)
{
    Commands::Keys kept;
    for (const QKeySequence &key : keys) {
        if (!key.isEmpty() && !kept.contains(key))
            kept.append(key);
    }
    const Commands::Command &changed = m_commands.at(command);
    if (kept == changed.usualKeys)
        m_choices.remove(changed.name);
    else
        m_choices.insert(changed.name, kept);
}

void ShortcutTable::removeKey(int command, const QKeySequence &key)
{
    Commands::Keys keys = keysOf(command);
    keys.removeIf([&key](const QKeySequence &its) { return collide(key, its); });
    setKeys(command, keys);
}

void ShortcutTable::reset(int command)
{
    m_choices.remove(m_commands.at(command).name);
}

void ShortcutTable::resetAll()
{
    for (int command = 0; command < m_commands.size(); ++command)
        reset(command);
}
