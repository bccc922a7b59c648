#include "store/packedblock.h"

#include "store/cheapesttokens.h"
#include "store/deflatereader.h"
#include "store/deflatewriter.h"

#include <libdeflate.h>

#include <algorithm>
#include <memory>
#include <numeric>

namespace {

/// Of libdeflate's levels, which reach to 12. The next one takes three times as long, for less than what the search for
/// the cheapest tokens spares on maps.
constexpr int CompressionLevel = 7;

struct Free
{
    void operator()(libdeflate_compressor *compressor) const { libdeflate_free_compressor(compressor); }
    void operator()(libdeflate_decompressor *decompressor) const { libdeflate_free_decompressor(decompressor); }
};

/// The compressor with its tables, which are costly to make: there is one thread.
libdeflate_compressor *compressor()
{
    static const std::unique_ptr<libdeflate_compressor, Free> instance(libdeflate_alloc_compressor(CompressionLevel));
    return instance.get();
}

/// A whole deflate stream.
QByteArray deflate(QByteArrayView bytes)
{
    const auto size = size_t(bytes.size());
    QByteArray stream(qsizetype(libdeflate_deflate_compress_bound(compressor(), size)), Qt::Uninitialized);
    const size_t used =
        libdeflate_deflate_compress(compressor(), bytes.data(), size, stream.data(), size_t(stream.size()));
    stream.truncate(qsizetype(used));
    return stream;
}

/// Takes what a block says of the history away from it, given how much of the history is left and the content behind
/// that. How much is left then.
qsizetype cutHistory(DeflateFormat::Block &block, qsizetype history, QByteArrayView content)
{
    auto token = block.tokens.begin();
    for (; token != block.tokens.end() && token->length() <= history; ++token)
        history -= token->length();
    if (token != block.tokens.end() && history > 0) { // a match that goes on in the content
        const qsizetype rest = token->length() - history;
        if (rest >= DeflateToken::MinMatch) {
            token->value = uint16_t(rest);
        } else {
            *token = {0, uchar(content[0])};
            if (rest > 1)
                token = block.tokens.insert(token + 1, {0, uchar(content[1])}) - 1;
        }
        history = 0;
    }
    block.tokens.erase(block.tokens.begin(), token);
    return history;
}

} // namespace

ContentKey PackedBlock::keyOf(QByteArrayView historyAndContent, qsizetype historySize)
{
    ContentKey key = ContentDigest::keyOf(historyAndContent);
    key.size -= historySize;
    return key;
}

PackedBlock PackedBlock::pack(QByteArrayView historyAndContent, qsizetype historySize)
{
    // libdeflate knows neither of a history nor of streams that go on. So the history is deflated as well; then what
    // the stream says, which names no positions, is written again without it and without an end, in fewer bits.
    const QByteArrayView content = historyAndContent.sliced(historySize);
    const QByteArray stream = deflate(historyAndContent);
    DeflateReader reader(stream);
    DeflateWriter writer;
    qsizetype written = 0;
    for (qsizetype history = historySize; !reader.atEnd();) {
        DeflateFormat::Block block = reader.readBlock();
        history = cutHistory(block, history, content);
        if (block.tokens.empty())
            continue;
        const auto size =
            std::accumulate(block.tokens.cbegin(), block.tokens.cend(), qsizetype(0),
                            [](qsizetype sum, const DeflateToken &token) { return sum + token.length(); });
        if (block.type == DeflateFormat::OwnCodes)
            block.tokens = cheapestTokens(block.tokens, content.data() + written, historySize + written);
        writer.writeBlock(block);
        written += size;
    }
    QByteArray deflated = writer.finish();
    deflated.squeeze();
    return {keyOf(historyAndContent, historySize), libdeflate_crc32(0, content.data(), size_t(content.size())),
            deflated};
}

QByteArray PackedBlock::unpacked() const
{
    const std::unique_ptr<libdeflate_decompressor, Free> decompressor(libdeflate_alloc_decompressor());
    const QByteArray stream = deflated + EndOfStream.toByteArray();
    QByteArray content(qsizetype(key.size), Qt::Uninitialized);
    [[maybe_unused]] const libdeflate_result result = libdeflate_deflate_decompress(
        decompressor.get(), stream.constData(), size_t(stream.size()), content.data(), size_t(content.size()), nullptr);
    Q_ASSERT(result == LIBDEFLATE_SUCCESS);
    return content;
}
