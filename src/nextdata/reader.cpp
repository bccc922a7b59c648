#include "nextdata/reader.h"

#include "nextdata/families.h"
#include "nextdata/texts.h"

#include <QtEndian>

#include <algorithm>
#include <numeric>

namespace NextData {
namespace {

constexpr char HeaderSignature[] = "PLUS3DOS\x1A";
constexpr qsizetype HeaderBytes = 128;
constexpr qsizetype LengthAt = 11;

} // namespace

const QList<Reader> &readers()
{
    static const QList<Reader> all = paletteReaders() + tileReaders() + mapReaders() + objectReaders() + spriteReaders()
        + imageReaders() + animationReaders();
    return all;
}

const Reader *findReader(const QString &id)
{
    const QList<Reader> &all = readers();
    const auto reader = std::find_if(all.cbegin(), all.cend(), [&id](const Reader &each) { return each.id == id; });
    return reader != all.cend() ? &*reader : nullptr;
}

Result<Reading> read(const Reader &reader, const QByteArray &bytes, const OptionValues &values)
{
    if (bytes.isEmpty())
        return Failure{Texts::tr("The file is empty")};
    if (bytes.size() > MostBytes)
        return Failure{Texts::tr("The file has %1 bytes, and the largest that is read as it is %2")
                           .arg(bytes.size())
                           .arg(MostBytes)};
    return reader.read(bytes, values);
}

bool hasPlus3DosHeader(const QByteArray &bytes)
{
    if (bytes.size() < HeaderBytes || !bytes.startsWith(HeaderSignature))
        return false;
    const auto sum = std::accumulate(bytes.cbegin(), bytes.cbegin() + HeaderBytes - 1, 0u,
                                     [](unsigned total, char byte) { return total + uchar(byte); });
    return uchar(bytes[HeaderBytes - 1]) == (sum & 0xFF);
}

QByteArray withoutHeader(const QByteArray &bytes)
{
    if (!hasPlus3DosHeader(bytes))
        return bytes;
    const qint64 length = qFromLittleEndian<quint32>(bytes.constData() + LengthAt);
    const qint64 end = length > HeaderBytes ? std::min<qint64>(length, bytes.size()) : bytes.size();
    return bytes.sliced(HeaderBytes, end - HeaderBytes);
}

} // namespace NextData
