#pragma once

#include <QByteArray>
#include <QString>

class ProjectExtras;

/// "NAME.quenmora-extras.json" beside a project file: an object with one member a section, written in exactly one way
/// (sorted, indented by four), so that version control can compare and merge it. When it is written, sections
/// that were not changed here are taken over from what another program left there meanwhile.
class ExtrasFile
{
public:
    static constexpr qint64 MaxBytes = qint64(16) << 20;

    [[nodiscard]] static QString pathFor(const QString &projectFile);

    // Both answer the reason why not, for the user, or empty.

    /// Takes the extras from beside the project file: none where nothing lies there, or what lies there cannot be read.
    [[nodiscard]] QString load(ProjectExtras &extras, const QString &projectFile);
    /// Writes them beside the project file unless they are there as they are. What could not be read there is kept
    /// aside first. Without any section and any file there, none is made.
    [[nodiscard]] QString save(ProjectExtras &extras, const QString &projectFile);

private:
    QString m_path; ///< what was last read or written
    QByteArray m_bytes; ///< what was there then
};
