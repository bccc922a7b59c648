#include "pictures/tiledcells.h"

#include "pictures/foreignfile.h"
#include "pictures/packedbytes.h"

#include <QtEndian>

#include <limits>

using ForeignFile::Texts;
using PackedBytes::Form;

namespace {

constexpr quint64 LargestGid = std::numeric_limits<quint32>::max();

std::optional<Form> formOf(const QString &compression)
{
    if (compression.isEmpty())
        return Form::Plain;
    if (compression == QLatin1String("zlib"))
        return Form::Zlib;
    if (compression == QLatin1String("gzip"))
        return Form::Gzip;
    if (compression == QLatin1String("zstd"))
        return Form::Zstd;
    return {};
}

} // namespace

TiledCells::TiledCells(qint64 count, const QString &encoding, const QString &compression)
    : m_count(count)
    , m_compression(compression)
{
    if (encoding == QLatin1String("csv"))
        m_encoding = Encoding::Csv;
    else if (encoding == QLatin1String("base64"))
        m_encoding = Encoding::Base64;
    else if (!encoding.isEmpty())
        m_problem = Texts::tr("its cells are written as “%1”, which cannot be read").arg(encoding);
    if (!formOf(compression))
        m_problem = Texts::tr("its cells are packed as “%1”, which cannot be read").arg(compression);
}

void TiledCells::add(std::optional<quint32> gid)
{
    if (!gid)
        m_problem = Texts::tr("cell %1 is no number of a tile").arg(m_gids.size() + 1);
    else if (m_gids.size() >= m_count)
        m_problem = Texts::tr("it has more than %1 cells").arg(m_count);
    if (m_problem.isEmpty())
        m_gids.append(*gid);
}

void TiledCells::add(QStringView text)
{
    if (!m_problem.isEmpty())
        return;
    if (m_encoding == Encoding::Csv)
        return addCsv(text);
    if (m_encoding == Encoding::List)
        return; // space between the elements
    m_base64.reserve(m_base64.size() + text.size());
    for (const QChar character : text) {
        if (!character.isSpace())
            m_base64.append(character.toLatin1());
    }
}

void TiledCells::addCsv(QStringView text)
{
    for (const QChar character : text) {
        const char16_t code = character.unicode();
        if (code >= u'0' && code <= u'9') {
            m_number = m_number.value_or(0) * 10 + (code - u'0');
            if (*m_number > LargestGid)
                m_problem = Texts::tr("cell %1 is no number of a tile").arg(m_gids.size() + 1);
        } else if (code == u',') {
            endNumber();
        } else if (!character.isSpace()) {
            m_problem = Texts::tr("“%1” is among the numbers of its cells").arg(character);
        }
        if (!m_problem.isEmpty())
            return;
    }
}

void TiledCells::endNumber()
{
    add(m_number ? std::optional(quint32(*m_number)) : std::nullopt);
    m_number.reset();
}

Result<QList<quint32>> TiledCells::finish()
{
    if (m_problem.isEmpty() && m_encoding == Encoding::Base64)
        return unpacked();
    if (m_problem.isEmpty() && m_number)
        endNumber();
    if (m_problem.isEmpty() && m_gids.size() < m_count)
        m_problem = Texts::tr("it has %1 of %2 cells").arg(m_gids.size()).arg(m_count);
    if (!m_problem.isEmpty())
        return Failure{m_problem};
    return std::move(m_gids);
}

Result<QList<quint32>> TiledCells::unpacked() const
{
    const auto decoded = QByteArray::fromBase64Encoding(m_base64, QByteArray::AbortOnBase64DecodingErrors);
    const qint64 size = m_count * qint64(sizeof(quint32));
    const Form form = *formOf(m_compression);
    const Failure damaged{Texts::tr("its cells are damaged, or not %1").arg(m_count)};
    if (!decoded || !PackedBytes::canHold(form, decoded.decoded.size(), size))
        return damaged;
    QList<quint32> gids(m_count);
    if (!PackedBytes::unpack(form, decoded.decoded, reinterpret_cast<uchar *>(gids.data()), size))
        return damaged;
    for (quint32 &gid : gids)
        gid = qFromLittleEndian(gid);
    return gids;
}
