#include "pictures/machinecolours.h"

#include "model/nximage.h"
#include "model/storedindices.h"
#include "pictures/ninebitcolour.h"

#include <algorithm>
#include <array>
#include <bitset>

namespace {

constexpr auto LevelOf = [] {
    std::array<qint8, 256> levels{};
    for (int component = 0; component < 256; ++component)
        levels[size_t(component)] = qint8(MachineColours::levelOf(component));
    return levels;
}();

/// The component that every operation of the model quantises to a level: a step of the grid to which they snap.
constexpr int keptComponent(int level)
{
    return level * 32;
}

QRgb keptColour(QRgb colour)
{
    const auto kept = [](int component) {
        const int level = LevelOf[size_t(component)];
        return level < 0 ? component : keptComponent(level);
    };
    return qRgba(kept(qRed(colour)), kept(qGreen(colour)), kept(qBlue(colour)), qAlpha(colour));
}

bool isMachineColour(QRgb colour)
{
    return LevelOf[size_t(qRed(colour))] >= 0 && LevelOf[size_t(qGreen(colour))] >= 0
        && LevelOf[size_t(qBlue(colour))] >= 0;
}

bool isClear(QRgb colour)
{
    return qAlpha(colour) < NxImage::LeastAlpha;
}

QImage withColours(QImage picture)
{
    const bool translucent = picture.hasAlphaChannel();
    return std::move(picture).convertToFormat(translucent ? QImage::Format_ARGB32 : QImage::Format_RGB32,
                                              Qt::AvoidDither);
}

/// Whether something holds for all colours in a picture of indices, but clear ones.
template <typename Predicate>
bool holdsForIndices(const QImage &indexed, const Predicate &holds)
{
    std::bitset<256> used;
    for (int y = 0; y < indexed.height(); ++y) {
        const uchar *line = indexed.constScanLine(y);
        for (int x = 0; x < indexed.width(); ++x)
            used.set(line[x]);
    }
    const QList<QRgb> colours = StoredIndices::shownColours(indexed, QImage::Format_ARGB32);
    for (qsizetype i = 0; i < colours.size(); ++i) {
        if (used.test(size_t(i)) && !isClear(colours[i]) && !holds(colours[i]))
            return false;
    }
    return true;
}

template <typename Predicate>
bool holdsForAll(const QImage &picture, const Predicate &holds)
{
    if (picture.isNull() || !NxImage::accepts(picture.size()))
        return false;
    if (StoredIndices::areIn(picture))
        return holdsForIndices(StoredIndices::of(picture), holds);
    const QImage colours = withColours(picture);
    const bool translucent = colours.hasAlphaChannel();
    for (int y = 0; y < colours.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(colours.constScanLine(y));
        const bool whole = std::all_of(line, line + colours.width(), [&holds, translucent](QRgb colour) {
            return holds(colour) || (translucent && isClear(colour));
        });
        if (!whole)
            return false;
    }
    return true;
}

} // namespace

std::optional<quint16> MachineColours::wordOf(QRgb colour)
{
    if (!isMachineColour(colour))
        return {};
    return NextColour::compose(LevelOf[size_t(qRed(colour))], LevelOf[size_t(qGreen(colour))],
                               LevelOf[size_t(qBlue(colour))], false);
}

bool MachineColours::areIn(const QImage &picture)
{
    return holdsForAll(picture, isMachineColour);
}

bool MachineColours::surviveQuantising(const QImage &picture)
{
    return holdsForAll(picture, [](QRgb colour) {
        const auto survives = [](int component) {
            return NextColour::levelOf(component) == LevelOf[size_t(component)];
        };
        return survives(qRed(colour)) && survives(qGreen(colour)) && survives(qBlue(colour));
    });
}

QImage MachineColours::kept(QImage picture)
{
    if (StoredIndices::areIn(picture)) {
        QImage indexed = StoredIndices::of(std::move(picture));
        QList<QRgb> colours = StoredIndices::shownColours(indexed, QImage::Format_ARGB32);
        std::transform(colours.cbegin(), colours.cend(), colours.begin(), keptColour);
        indexed.setColorTable(colours);
        return indexed;
    }
    QImage colours = withColours(std::move(picture));
    for (int y = 0; y < colours.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(colours.scanLine(y));
        std::transform(line, line + colours.width(), line, keptColour);
    }
    return colours;
}

QRgb MachineColours::keptOf(int number)
{
    return qRgb(keptComponent(NineBitColour::red(number)), keptComponent(NineBitColour::green(number)),
                keptComponent(NineBitColour::blue(number)));
}

QRgb MachineColours::shown(QRgb keptColour)
{
    const auto component = [](int kept) { return NextColour::componentOf(NextColour::levelOf(kept)); };
    return qRgb(component(qRed(keptColour)), component(qGreen(keptColour)), component(qBlue(keptColour)));
}
