#include "store/documentreader.h"

#include "model/pngreader.h"

#include <algorithm>

namespace {

/// Reads on to the end, which is when damage shows; false for a damaged member. What lies far behind the content is no
/// part of it and stays unread.
bool isWhole(QIODevice &device)
{
    constexpr qint64 SliceSize = qint64(1) << 16;
    constexpr qint64 MostSlices = 16;
    QByteArray slice(SliceSize, Qt::Uninitialized);
    for (int slices = 0; slices < MostSlices; ++slices) {
        const qint64 count = device.read(slice.data(), SliceSize);
        if (count <= 0)
            return count == 0;
    }
    return true;
}

} // namespace

std::unique_ptr<QIODevice> DocumentReader::open(const QString &memberName) const
{
    std::unique_ptr<QIODevice> device = members(memberName);
    return device && device->bytesAvailable() > 0 ? std::move(device) : nullptr;
}

QByteArray DocumentReader::readAll(const QString &memberName, qint64 mostBytes) const
{
    const std::unique_ptr<QIODevice> device = open(memberName);
    return device && device->bytesAvailable() <= mostBytes ? device->readAll() : QByteArray();
}

DocumentReader::Picture DocumentReader::readPicture(const QString &memberName, Use use, bool again)
{
    const std::unique_ptr<QIODevice> device = open(memberName);
    if (!device)
        return {};
    PngReader reader(*device);
    const bool fits = reader.readHead() && budget.takePixels(reader.byteCount(), use == Use::Tiles, again);
    const QImage image = fits ? reader.read() : QImage();
    return isWhole(*device) ? Picture{image, true} : Picture{};
}

std::optional<TileMap::Rows> DocumentReader::readCells(const QString &memberName, bool again)
{
    const std::unique_ptr<QIODevice> device = open(memberName);
    if (!device)
        return std::nullopt;
    return budget.takeCells(
        again, [&device](TileMapFormat::Budget &cells) { return TileMapFormat::readRows(*device, cells); });
}

bool DocumentReader::fail(const QString &message)
{
    error = message;
    return false;
}
