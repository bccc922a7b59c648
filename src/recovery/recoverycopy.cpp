#include "recovery/recoverycopy.h"

#include "store/packedblock.h"

#include <QFile>

#include <zlib.h>

#include <algorithm>
#include <functional>
#include <limits>

namespace {

/// A file that is larger is none of ours: a piece is one packed block.
constexpr qint64 MostBytes = qint64(64) << 20;

/// Deflate cannot pack more bytes into one.
constexpr qint64 MostDeflateRatio = 1032;

/// The numbers of the manifests among files, the latest first.
QList<qint64> manifestNumbers(const QStringList &files)
{
    QList<qint64> numbers;
    for (const QString &file : files) {
        const qint64 number = file.mid(RecoveryFolder::ManifestPrefix.size()).toLongLong();
        if (number > 0 && file == RecoveryCopy::manifestName(number))
            numbers.append(number);
    }
    std::sort(numbers.begin(), numbers.end(), std::greater<>());
    return numbers;
}

/// Unpacks a stream of deflated pieces, of which none is the stream's last; empty unless that gives as many bytes.
QByteArray inflated(const QByteArrayList &pieces, qint64 size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    z_stream stream{};
    if (inflateInit2(&stream, -MAX_WBITS) != Z_OK)
        return {};
    int status = Z_OK;
    qint64 done = 0;
    for (qsizetype i = 0; i <= pieces.size() && status == Z_OK; ++i) {
        const QByteArrayView piece = i < pieces.size() ? pieces[i] : PackedBlock::EndOfStream;
        stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(piece.data())); // which it only reads
        stream.avail_in = uInt(piece.size());
        while (stream.avail_in > 0 && status == Z_OK) {
            const auto room = uInt(std::min<qint64>(size - done, std::numeric_limits<int>::max()));
            stream.next_out = reinterpret_cast<Bytef *>(bytes.data() + done);
            stream.avail_out = room;
            status = inflate(&stream, Z_NO_FLUSH);
            done += room - stream.avail_out;
        }
    }
    inflateEnd(&stream);
    return status == Z_STREAM_END && done == size ? bytes : QByteArray();
}

} // namespace

RecoveryCopy::RecoveryCopy(RecoveryFolder folder) : m_folder(std::move(folder))
{
    for (const qint64 number : manifestNumbers(m_folder.files())) {
        m_state = Damaged;
        const auto manifest = RecoveryManifest::fromText(bytesOf(manifestName(number)));
        if (!manifest)
            continue;
        m_manifest = *manifest;
        m_number = number;
        if (isWhole()) {
            m_state = Whole;
            return;
        }
    }
}

QString RecoveryCopy::manifestName(qint64 number)
{
    return RecoveryFolder::ManifestPrefix + QString::number(number);
}

bool RecoveryCopy::isWhole() const
{
    const QSet<QString> files = m_manifest.files();
    return std::all_of(files.cbegin(), files.cend(),
                       [this](const QString &file) { return RecoveryManifest::fileNameFor(bytesOf(file)) == file; });
}

QImage RecoveryCopy::picture() const
{
    return m_manifest.picture.isEmpty() ? QImage() : QImage::fromData(bytesOf(m_manifest.picture), "png");
}

QByteArray RecoveryCopy::read(const QString &name) const
{
    const auto member = std::find_if(m_manifest.members.cbegin(), m_manifest.members.cend(),
                                     [&name](const RecoveryManifest::Member &one) { return one.name == name; });
    if (member == m_manifest.members.cend())
        return {};
    QByteArrayList pieces;
    qint64 packed = 0;
    for (const QString &piece : member->pieces) {
        pieces.append(bytesOf(piece));
        packed += pieces.last().size();
    }
    if (member->size > packed * MostDeflateRatio)
        return {};
    const QByteArray bytes = inflated(pieces, member->size);
    const auto checksum = crc32_z(0, reinterpret_cast<const Bytef *>(bytes.constData()), z_size_t(bytes.size()));
    return checksum == member->checksum ? bytes : QByteArray();
}

QByteArray RecoveryCopy::bytesOf(const QString &file) const
{
    QFile source(m_folder.filePath(file));
    return source.open(QIODevice::ReadOnly) && source.size() <= MostBytes ? source.readAll() : QByteArray();
}
