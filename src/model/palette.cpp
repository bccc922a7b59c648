#include "model/palette.h"

#include "model/nextcolour.h"
#include "model/rawfile.h"

#include <QFile>
#include <QtEndian>

#include <algorithm>
#include <limits>
#include <numeric>

namespace {

constexpr qsizetype WordBytes = Palette::Size * qsizetype(sizeof(quint16));

/// The word of a colour whose components are snapped already.
quint16 wordOf(const QColor &snapped, bool priority)
{
    return NextColour::compose(NextColour::levelOf(snapped.red()), NextColour::levelOf(snapped.green()),
                               NextColour::levelOf(snapped.blue()), priority);
}

constexpr int snapped(int component)
{
    return NextColour::snappedComponent(NextColour::snapStep(component));
}

/// Bytes of a palette file: 256 big-endian words, and one zero byte more when the name ends in ".npl".
qsizetype fileSize(const QString &fileName)
{
    return fileName.endsWith(QLatin1String(".npl"), Qt::CaseInsensitive) ? WordBytes + 1 : WordBytes;
}

} // namespace

Palette::Palette(QObject *parent) : QObject(parent) { }

void Palette::setName(const QString &name)
{
    if (name == m_name)
        return;
    m_name = name;
    emit nameChanged(m_name);
}

QRgb Palette::rgb(int index) const
{
    const quint16 word = rawColour(index);
    return qRgb(NextColour::componentOf(NextColour::red(word)), NextColour::componentOf(NextColour::green(word)),
                NextColour::componentOf(NextColour::blue(word)));
}

QColor Palette::colour(int index) const
{
    QColor colour = QColor::fromRgb(rgb(index));
    if (index == m_transparencyIndex)
        colour.setAlpha(0);
    return colour;
}

QList<QColor> Palette::colours() const
{
    QList<QColor> colours;
    colours.reserve(Size);
    for (int i = 0; i < Size; ++i)
        colours.append(colour(i));
    return colours;
}

QList<QRgb> Palette::colourTable() const
{
    QList<QRgb> table;
    table.reserve(Size);
    for (int i = 0; i < Size; ++i)
        table.append(rgb(i));
    return table;
}

Palette::ShownEntries Palette::ownEntries()
{
    ShownEntries entries;
    std::iota(entries.begin(), entries.end(), quint8(0));
    return entries;
}

void Palette::showEntries(const ShownEntries &entries)
{
    if (entries == m_shown)
        return;
    m_shown = entries;
    emit shownColoursChanged();
}

QColor Palette::shownColour(int index) const
{
    QColor colour = QColor::fromRgb(rgb(m_shown[size_t(index)]));
    if (index == m_transparencyIndex)
        colour.setAlpha(0);
    return colour;
}

QList<QRgb> Palette::shown(const QList<QRgb> &colourTable) const
{
    QList<QRgb> table = colourTable;
    for (qsizetype i = 0; i < std::min<qsizetype>(table.size(), Size); ++i)
        table[i] = colourTable.value(m_shown[size_t(i)]);
    return table;
}

QImage Palette::shown(const QImage &picture) const
{
    if (picture.format() != QImage::Format_Indexed8 || m_shown == ownEntries())
        return picture;
    QImage result = picture;
    result.setColorTable(shown(picture.colorTable()));
    return result;
}

bool Palette::priority(int index) const
{
    return NextColour::priority(rawColour(index));
}

quint16 Palette::rawColour(int index) const
{
    Q_ASSERT(index >= 0 && index < Size);
    return m_words[size_t(index)];
}

void Palette::setRawColour(int index, quint16 word)
{
    if (word == rawColour(index))
        return;
    storeRawColour(index, word);
    emit colourChanged(index, colour(index), NextColour::priority(word));
}

void Palette::storeRawColour(int index, quint16 word)
{
    Q_ASSERT(index >= 0 && index < Size);
    m_words[size_t(index)] = word;
}

void Palette::setColour(int index, const QColor &colour, bool priority)
{
    const QColor snapped = snapColour(colour);
    edit(index, wordOf(snapped, priority), snapped);
}

void Palette::fill(const QColor &colour, bool priority)
{
    const QColor snapped = snapColour(colour);
    const quint16 word = wordOf(snapped, priority);
    for (int i = 0; i < Size; ++i)
        edit(i, word, snapped);
}

void Palette::edit(int index, quint16 word, const QColor &snapped)
{
    const quint16 before = rawColour(index);
    if (word == before)
        return;
    storeRawColour(index, word);
    emit colourChanged(index, snapped, NextColour::priority(word));
    emit colourEdited(index, before, word);
}

void Palette::copyColours(const Palette &other)
{
    m_words = other.m_words;
}

void Palette::loadStandardNext()
{
    for (int i = 0; i < Size; ++i) {
        // the ninth bit, which an 8-bit colour lacks, is the OR of the two blue bits that it has
        const int lowBlue = (i & 3) != 0 ? 1 : 0;
        storeRawColour(i, quint16(i << 8 | lowBlue));
    }
}

QColor Palette::snapColour(const QColor &colour)
{
    return {snapped(colour.red()), snapped(colour.green()), snapped(colour.blue())};
}

int Palette::nearestIndex(const QColor &colour) const
{
    const QRgb wanted = colour.rgba();
    int nearest = -1;
    int least = std::numeric_limits<int>::max();
    for (int i = 0; i < Size; ++i) {
        const QRgb entry = rgb(i);
        const QRgb withAlpha = i == m_transparencyIndex ? entry & RGB_MASK : entry;
        if (withAlpha == wanted)
            return i;
        const int distance = NextColour::squaredDistance(entry, wanted);
        if (distance < least) {
            least = distance;
            nearest = i;
        }
    }
    return nearest;
}

// Palette file (.pal, .nxp, NAME_palette.bin, .npl)
//
//  offset  size  content
//  2i      2     word of entry i (0–255), big-endian: RRRGGGBB, P000000B
//  512     1     only in .npl files: 0

bool Palette::exportData(const QString &fileName) const
{
    QByteArray bytes(fileSize(fileName), '\0');
    qToBigEndian<quint16>(m_words.data(), Size, bytes.data());
    return RawFile::write(fileName, bytes);
}

bool Palette::importData(const QString &fileName)
{
    const qsizetype size = fileSize(fileName);
    QFile file(fileName);
    if (file.size() != size || !RawFile::openForReading(file))
        return false;
    const QByteArray bytes = file.read(size);
    if (bytes.size() != size)
        return false;
    qFromBigEndian<quint16>(bytes.constData(), Size, m_words.data());
    return true;
}

QString Palette::exportFileName() const
{
    return m_name + QStringLiteral("_palette.bin");
}

bool Palette::exportToDirectory(const QString &folder) const
{
    return exportData(RawFile::pathIn(folder, exportFileName()));
}
