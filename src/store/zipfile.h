#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QObject>
#include <QString>

#include <memory>

struct PackedMember;

/// A zip archive that is open for reading or for writing.
///
/// Members are deflated at the best level, all with the same time, so that equal contents make equal archives, and
/// looked up by their full, case-sensitive name; zip64
/// records are used when an archive needs them. File and member names are passed on in the local
/// 8-bit encoding. Every failure is told by the result alone, and an archive from outside may be
/// damaged in any way: it costs no more memory than the bytes that it really holds.
class ZipFile : public QObject
{
    Q_OBJECT

public:
    /// The largest member that is unpacked, in bytes: the tile layer of a map of 9999 × 9999 cells
    /// (the largest that the program makes) with some room to spare.
    static constexpr qint64 MaxMemberSize = qint64(1280) << 20;

    ZipFile();
    ~ZipFile() override; ///< As close(); an archive that is being written is finished first.

    /// Opens an existing archive; false when there is none or its directory cannot be read.
    [[nodiscard]] bool openForReading(const QString &fileName);

    /// Creates the file, or truncates an existing one; false when that is not possible.
    [[nodiscard]] bool openForWriting(const QString &fileName);

    /// Whether an archive open for reading has a member of that name.
    [[nodiscard]] bool contains(const QString &memberName) const;

    /// The unpacked bytes of a member; empty when there is no such member, when it is damaged, or
    /// when it claims to be larger than MaxMemberSize or than its packed bytes can yield.
    [[nodiscard]] QByteArray read(const QString &memberName) const;

    /// Opens a member for reading from its start, as far as somebody asks; null where read() would refuse it by its
    /// claims. The last bytes are handed out only when the whole is undamaged, and reading fails for ever otherwise;
    /// bytesAvailable() is what the member claims to have. There is one such device at a time: another member that is
    /// read ends it, and so does closing.
    [[nodiscard]] std::unique_ptr<QIODevice> open(const QString &memberName) const;

    /// Adds a member to an archive open for writing; false when it could not be written whole.
    [[nodiscard]] bool write(const QString &memberName, const QByteArray &bytes);
    /// The same with a member that is deflated already.
    [[nodiscard]] bool write(const PackedMember &member);

    /// Finishes an archive that is being written, and closes it. True when all of it went well, and
    /// when no archive is open.
    bool close();

private:
    struct Archive;
    std::unique_ptr<Archive> m_archive;
};
