#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

/// What a copy of a project is made of. It is the copy's last file to be written, and names all the others.
///
/// Those hold packed pieces of the project's members, and are named by the checksum of what they hold: equal pieces
/// are one file, a piece that did not change is written once, and each file can be told to be whole.
struct RecoveryManifest
{
    struct Member
    {
        QString name{};
        qint64 size = 0; ///< bytes when unpacked
        quint32 checksum = 0; ///< CRC-32 of those bytes
        QStringList pieces{}; ///< files that unpack to them, one after the other

        bool operator==(const Member &) const = default;
    };

    QString projectName;
    QString projectFile; ///< where the project was opened or saved; empty when it never was
    QString fileStamp; ///< of that file then; empty when it was going to be written
    QDateTime time; ///< when the project was as the copy shows it
    QString picture; ///< the file of a small picture of the project, or none
    QList<Member> members;

    /// The names of all files that the copy needs besides this one.
    [[nodiscard]] QSet<QString> files() const;

    /// The text that is written: a checksum of the rest in the first line, then JSON.
    [[nodiscard]] QByteArray toText() const;
    /// Nothing unless the text is whole and makes sense.
    [[nodiscard]] static std::optional<RecoveryManifest> fromText(const QByteArray &text);

    /// By which it can be told, most likely, whether a file is still the same; empty for no file.
    [[nodiscard]] static QString stampOf(const QString &fileName);
    /// Whether somebody else changed the project's file since.
    [[nodiscard]] bool isFileChanged() const { return !fileStamp.isEmpty() && fileStamp != stampOf(projectFile); }

    /// The name of the file for these bytes.
    [[nodiscard]] static QString fileNameFor(const QByteArray &bytes);
};
