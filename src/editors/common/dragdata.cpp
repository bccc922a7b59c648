#include "editors/common/dragdata.h"

#include <QDataStream>
#include <QList>

namespace {

QMimeData *mimeDataOf(const QString &type, const QList<qint32> &numbers)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    for (const qint32 number : numbers)
        stream << number;
    auto *mimeData = new QMimeData;
    mimeData->setData(type, bytes);
    return mimeData;
}

/// The first count numbers of the data; an empty list when it does not hold so many.
QList<qint32> numbersIn(const QMimeData *mimeData, const QString &type, int count)
{
    const QByteArray bytes = mimeData ? mimeData->data(type) : QByteArray();
    QDataStream stream(bytes);
    QList<qint32> numbers(count);
    for (qint32 &number : numbers)
        stream >> number;
    return stream.status() == QDataStream::Ok ? numbers : QList<qint32>();
}

} // namespace

QMimeData *TileDrag::toMimeData() const
{
    return mimeDataOf(mimeType(), {index, offset});
}

std::optional<TileDrag> TileDrag::fromMimeData(const QMimeData *mimeData)
{
    const QList<qint32> numbers = numbersIn(mimeData, mimeType(), 2);
    return numbers.isEmpty() ? std::nullopt : std::optional(TileDrag{numbers[0], numbers[1]});
}

QMimeData *SpriteDrag::toMimeData() const
{
    return mimeDataOf(mimeType(), {index});
}

std::optional<SpriteDrag> SpriteDrag::fromMimeData(const QMimeData *mimeData)
{
    const QList<qint32> numbers = numbersIn(mimeData, mimeType(), 1);
    return numbers.isEmpty() ? std::nullopt : std::optional(SpriteDrag{numbers[0]});
}
