#include "store/zipfile.h"

#include "model/rawfile.h"
#include "store/packedmember.h"
#include "store/platform.h"

#include <QFileInfo>
#include <QHash>

#include <algorithm>

namespace {

constexpr int BestCompression = 9;
constexpr int MaxNameLength = 65535; // the length field has 16 bits

/// minizip takes and counts bytes in 32-bit integers: larger buffers go through in slices.
constexpr qint64 SliceSize = qint64(1) << 30;

/// Deflate cannot pack more than this many bytes into one: what claims more is damaged, or wants to fill the memory.
constexpr qint64 MaxDeflateRatio = 1032;

/// Bytes that a packed member takes besides its content; an empty one takes two.
constexpr qint64 DeflateSlack = 64;

/// From this size on, the sizes of a member may not fit the 32-bit fields of a plain local header;
/// it lies below 2^32 because deflate can make incompressible data a little longer.
constexpr qint64 Zip64Threshold = qint64(0xFF000000);

using MemberIndex = QHash<QByteArray, unz64_file_pos>;

/// Where each member is, read once, because minizip looks a name up by going through all of them.
/// Of members with equal names the first one counts; a damaged directory is read as far as it goes.
MemberIndex indexOf(unzFile reader)
{
    MemberIndex index;
    QByteArray name(MaxNameLength, Qt::Uninitialized);
    for (int status = unzGoToFirstFile(reader); status == UNZ_OK; status = unzGoToNextFile(reader)) {
        unz_file_info64 info{};
        unz64_file_pos position{};
        if (unzGetCurrentFileInfo64(reader, &info, name.data(), MaxNameLength, nullptr, 0, nullptr, 0) != UNZ_OK
            || unzGetFilePos64(reader, &position) != UNZ_OK)
            break;
        const QByteArray key = name.first(qsizetype(info.size_filename));
        if (!index.contains(key))
            index.insert(key, position);
    }
    return index;
}

/// Whether the current member can be as long as the directory says, its packed bytes being given.
bool hasPlausibleSize(const unz_file_info64 &info)
{
    if (info.uncompressed_size > quint64(ZipFile::MaxMemberSize)
        || info.compressed_size > quint64(ZipFile::MaxMemberSize) + DeflateSlack)
        return false;
    const qint64 ratio = info.compression_method == Z_DEFLATED ? MaxDeflateRatio : 1;
    return qint64(info.uncompressed_size) <= qint64(info.compressed_size) * ratio + DeflateSlack;
}

/// The current member of an archive, open and unpacked as it is read.
class MemberDevice final : public QIODevice
{
public:
    MemberDevice(unzFile reader, qint64 size) : m_reader(reader), m_left(size)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }
    [[nodiscard]] bool isSequential() const override { return true; }
    [[nodiscard]] qint64 bytesAvailable() const override { return m_left; }

protected:
    qint64 readData(char *to, qint64 size) override
    {
        qint64 done = 0;
        for (const qint64 wanted = std::min(size, m_left); m_intact && done < wanted;) {
            const int count = unzReadCurrentFile(m_reader, to + done, unsigned(std::min(wanted - done, SliceSize)));
            m_intact = count > 0;
            done += std::max(count, 0);
        }
        m_left -= done;
        if (m_intact && m_left == 0 && done > 0)
            m_intact = unzCloseCurrentFile(m_reader) == UNZ_OK; // compares the checksum
        return m_intact ? done : -1;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    unzFile m_reader;
    qint64 m_left; ///< bytes that were not read yet
    bool m_intact = true;
};

/// All members are from the same time, so that equal projects make equal files: the first that the format can tell,
/// midnight on the first of January 1980.
constexpr uLong FirstDosDate = 1 << 21 | 1 << 16;

bool append(zipFile writer, QByteArrayView bytes)
{
    Q_ASSERT(bytes.size() <= SliceSize);
    return zipWriteInFileInZip(writer, bytes.data(), unsigned(bytes.size())) == ZIP_OK;
}

} // namespace

/// The open archive: one of the two handles is set.
struct ZipFile::Archive
{
    unzFile reader = nullptr;
    zipFile writer = nullptr;
    MemberIndex members;
    qint64 fileSize = 0;
};

ZipFile::ZipFile() = default;

ZipFile::~ZipFile()
{
    close();
}

bool ZipFile::openForReading(const QString &fileName)
{
    close();
    const QFileInfo file(fileName);
    if (!file.isFile()) // a pipe would block, and a folder can be opened but not read
        return false;
    const unzFile reader = Platform::openArchive(fileName);
    if (!reader)
        return false;
    m_archive.reset(new Archive{reader, nullptr, indexOf(reader), file.size()});
    return true;
}

bool ZipFile::openForWriting(const QString &fileName)
{
    close();
    if (!RawFile::isWritable(fileName))
        return false;
    const zipFile writer = Platform::createArchive(fileName);
    if (!writer)
        return false;
    m_archive.reset(new Archive{nullptr, writer, {}, 0});
    return true;
}

bool ZipFile::contains(const QString &memberName) const
{
    return m_archive && m_archive->members.contains(memberName.toLocal8Bit());
}

QByteArray ZipFile::read(const QString &memberName) const
{
    const std::unique_ptr<QIODevice> member = open(memberName);
    if (!member)
        return {};
    QByteArray bytes(member->bytesAvailable(), Qt::Uninitialized);
    return member->read(bytes.data(), bytes.size()) == bytes.size() ? bytes : QByteArray();
}

std::unique_ptr<QIODevice> ZipFile::open(const QString &memberName) const
{
    if (!m_archive)
        return nullptr;
    const unzFile reader = m_archive->reader;
    const auto member = m_archive->members.constFind(memberName.toLocal8Bit());
    if (member == m_archive->members.cend())
        return nullptr;
    unz_file_info64 info{};
    if (unzGoToFilePos64(reader, &*member) != UNZ_OK
        || unzGetCurrentFileInfo64(reader, &info, nullptr, 0, nullptr, 0, nullptr, 0) != UNZ_OK
        || info.compressed_size > quint64(m_archive->fileSize) || !hasPlausibleSize(info)
        || unzOpenCurrentFile(reader) != UNZ_OK) // which closes the one before
        return nullptr;
    return std::make_unique<MemberDevice>(reader, qint64(info.uncompressed_size));
}

bool ZipFile::write(const QString &memberName, const QByteArray &bytes)
{
    return write(PackedMember::pack(memberName, bytes));
}

bool ZipFile::write(const PackedMember &member)
{
    constexpr int AsItIs = 1; // the bytes are deflated already
    if (!m_archive || !m_archive->writer)
        return false;
    const zipFile writer = m_archive->writer;
    zip_fileinfo info{};
    info.dosDate = FirstDosDate;
    const qint64 size = member.size();
    if (zipOpenNewFileInZip2_64(writer, member.name.toLocal8Bit().constData(), &info, nullptr, 0, nullptr, 0, nullptr,
                                Z_DEFLATED, BestCompression, AsItIs, size >= Zip64Threshold)
        != ZIP_OK)
        return false;
    const bool written = std::all_of(member.blocks.cbegin(), member.blocks.cend(),
                                     [writer](const PackedBlock &block) { return append(writer, block.deflated); })
        && append(writer, PackedBlock::EndOfStream);
    const bool finished = zipCloseFileInZipRaw64(writer, ZPOS64_T(size), member.checksum()) == ZIP_OK;
    return written && finished;
}

bool ZipFile::close()
{
    const std::unique_ptr<Archive> archive = std::move(m_archive);
    if (!archive)
        return true;
    return archive->writer ? zipClose(archive->writer, nullptr) == ZIP_OK : unzClose(archive->reader) == UNZ_OK;
}
