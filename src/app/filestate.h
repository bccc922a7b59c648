#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

/// A file as it was found on the disk at one moment, to tell later whether it has changed.
///
/// Size and times tell cheaply that nothing happened. Where they differ the content decides, by its hash: a file that
/// was merely touched, or written again with the same bytes, has not changed.
class FileState
{
public:
    /// The state of no file.
    FileState() = default;
    /// Reads the whole file once.
    explicit FileState(const QString &fileName);

    [[nodiscard]] QString fileName() const { return m_fileName; }
    [[nodiscard]] bool exists() const { return m_stamp.size >= 0; }
    /// Of the content; empty where it cannot be read.
    [[nodiscard]] QByteArray digest() const { return m_hash; }
    /// Whether the file still has the size and the times that it had. Reads nothing of it.
    [[nodiscard]] bool isCurrent() const { return m_stamp == stampOf(m_fileName); }
    /// Whether both are the same bytes, or both no file at all.
    [[nodiscard]] bool hasContentOf(const FileState &other) const;

private:
    struct Stamp
    {
        qint64 size = -1; ///< of no file
        QDateTime changed; ///< the content
        QDateTime touched; ///< the content or what belongs to it, which no program sets back

        bool operator==(const Stamp &) const = default;
    };

    [[nodiscard]] static Stamp stampOf(const QString &fileName);

    QString m_fileName;
    Stamp m_stamp;
    QByteArray m_hash; ///< empty where the content cannot be read
};
