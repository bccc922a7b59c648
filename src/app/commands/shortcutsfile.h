#pragma once

#include "ui/commands.h"

#include <QJsonObject>
#include <QString>

/// The file that keeps the keys which a person chose, and nothing else: by the name of a command a list of keys, which
/// is empty for a command that has none any more.
///
/// There is no file while nothing was chosen. What it says of commands that this version does not know, or in a way
/// that it does not understand, stays in it.
class ShortcutsFile
{
public:
    explicit ShortcutsFile(QString path) : m_path(std::move(path)) { }

    /// Reads it. Where it is damaged, it is kept aside, and this says so for people; else it is empty.
    [[nodiscard]] QString load();
    [[nodiscard]] const Commands::Choices &choices() const { return m_choices; }

    /// Writes these choices; why it could not, else empty.
    [[nodiscard]] QString save(const Commands::Choices &choices);

private:
    QString m_path;
    Commands::Choices m_choices;
    QJsonObject m_foreign; ///< what is not understood
};
