#include "store/packedblock.h"

#include <libdeflate.h>
#include <zlib.h>

#include <algorithm>
#include <memory>

namespace {

constexpr int BestCompression = 9;
constexpr int RawDeflate = -MAX_WBITS; // neither head nor checksum

struct FreeCompressor
{
    void operator()(libdeflate_compressor *compressor) const { libdeflate_free_compressor(compressor); }
};

/// The compressor and the space that it works in, which are costly to make: there is one thread.
libdeflate_compressor *compressor()
{
    static const std::unique_ptr<libdeflate_compressor, FreeCompressor> instance(
        libdeflate_alloc_compressor(BestCompression));
    return instance.get();
}

/// zlib's inflater over some bytes.
class Inflater
{
public:
    explicit Inflater(QByteArrayView deflated)
    {
        inflateInit2(&m_stream, RawDeflate);
        m_stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(deflated.data())); // which it only reads
        m_stream.avail_in = uInt(deflated.size());
    }
    ~Inflater() { inflateEnd(&m_stream); }
    Inflater(const Inflater &) = delete;
    Inflater &operator=(const Inflater &) = delete;

    void setOutput(QByteArray &to)
    {
        m_stream.next_out = reinterpret_cast<Bytef *>(to.data());
        m_stream.avail_out = uInt(to.size());
    }
    [[nodiscard]] int run(int flush) { return inflate(&m_stream, flush); }
    [[nodiscard]] const z_stream &stream() const { return m_stream; }

private:
    z_stream m_stream{};
};

/// Where things are in a deflate stream, in bits from its start.
struct StreamLayout
{
    qsizetype lastBlock = 0; ///< where its last deflate block begins
    qsizetype end = 0;
};

/// Deflate blocks follow each other bit by bit and do not say how long they are: the stream has to be gone through.
StreamLayout layoutOf(QByteArrayView deflated, qsizetype contentSize)
{
    // what inflate() tells in data_type when it stops between deflate blocks, beside the bits left of the last byte
    constexpr int AtEndOfBlock = 128;
    constexpr int InLastBlock = 64;
    constexpr int BitsLeft = 7;

    QByteArray content(contentSize + 1, Qt::Uninitialized); // with room to spare, or it would stop for want of it
    Inflater inflater(deflated);
    inflater.setOutput(content);
    StreamLayout layout;
    while (inflater.run(Z_BLOCK) == Z_OK) {
        const z_stream &stream = inflater.stream();
        if (!(stream.data_type & AtEndOfBlock))
            continue;
        const qsizetype at = (deflated.size() - qsizetype(stream.avail_in)) * 8 - (stream.data_type & BitsLeft);
        (stream.data_type & InLastBlock ? layout.end : layout.lastBlock) = at;
    }
    return layout;
}

/// Makes a whole stream one that others can be put behind: its last deflate block is said not to be the last, and an
/// empty stored one, which ends at a byte (three zero bits, zeros up to the next byte, its length and that inverted),
/// comes behind it.
void reopen(QByteArray &deflated, qsizetype contentSize)
{
    constexpr int HeadBits = 3;
    const StreamLayout layout = layoutOf(deflated, contentSize);
    deflated[layout.lastBlock / 8] &= char(~(1 << layout.lastBlock % 8));
    if (deflated.size() * 8 - layout.end < HeadBits)
        deflated.append('\0');
    deflated.append(QByteArrayView("\0\0\xFF\xFF", 4));
}

} // namespace

PackedBlock PackedBlock::pack(QByteArrayView content)
{
    return pack(content, ContentDigest::keyOf(content));
}

PackedBlock PackedBlock::pack(QByteArrayView content, const ContentKey &key)
{
    const auto size = size_t(content.size());
    QByteArray deflated(qsizetype(libdeflate_deflate_compress_bound(compressor(), size)), Qt::Uninitialized);
    deflated.resize(qsizetype(
        libdeflate_deflate_compress(compressor(), content.data(), size, deflated.data(), size_t(deflated.size()))));
    reopen(deflated, content.size());
    deflated.squeeze();
    return {key, libdeflate_crc32(0, content.data(), size), deflated};
}

QByteArray PackedBlock::unpacked() const
{
    QByteArray content(qsizetype(key.size), Qt::Uninitialized);
    Inflater inflater(deflated);
    inflater.setOutput(content);
    [[maybe_unused]] const int status = inflater.run(Z_SYNC_FLUSH);
    Q_ASSERT(status == Z_OK && inflater.stream().avail_out == 0);
    return content;
}
