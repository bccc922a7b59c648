#include "store/framedocument.h"

#include "model/animation.h"
#include "store/documentreader.h"

#include <QSignalBlocker>

#include <algorithm>

namespace {

constexpr QLatin1String Id("id");
constexpr QLatin1String Width("width");
constexpr QLatin1String Height("height");
constexpr QLatin1String Index("index");
constexpr QLatin1String Offset("offset");
constexpr QLatin1String Flip("flip");
constexpr QLatin1String Mirror("mirror");
constexpr QLatin1String Rotate("rotate");

QJsonObject writeCell(const AnimationFrame::Cell &cell)
{
    return {
        {Index, cell.index}, {Offset, cell.offset}, {Flip, cell.flip}, {Mirror, cell.mirror}, {Rotate, cell.rotate},
    };
}

AnimationFrame::Cell readCell(const QJsonObject &object)
{
    AnimationFrame::Cell cell;
    cell.index = object.value(Index).toInt();
    cell.offset = object.value(Offset).toInt();
    cell.flip = object.value(Flip).toBool();
    cell.mirror = object.value(Mirror).toBool();
    cell.rotate = object.value(Rotate).toBool();
    return cell;
}

/// A grid filled row by row as far as the array reaches; rows beyond it share their zeroed cells.
AnimationFrame::Cells readCells(const QJsonArray &array, QSize size)
{
    AnimationFrame::Cells cells(size.height(), QList<AnimationFrame::Cell>(size.width()));
    qsizetype next = 0;
    for (QList<AnimationFrame::Cell> &row : cells) {
        if (next >= array.size())
            break;
        for (AnimationFrame::Cell &cell : row) {
            if (next >= array.size())
                break;
            cell = readCell(array.at(next++).toObject());
        }
    }
    return cells;
}

} // namespace

QJsonArray FrameDocument::write(const Animation &animation, QLatin1String cellsKey)
{
    QJsonArray frames;
    for (int index = 0; index < animation.frameCount(); ++index) {
        const AnimationFrame *frame = animation.frame(index);
        QJsonArray cells;
        for (const QList<AnimationFrame::Cell> &row : frame->cells()) {
            for (const AnimationFrame::Cell &cell : row)
                cells.append(writeCell(cell));
        }
        frames.append(QJsonObject{{Id, frame->id().toString()}, {cellsKey, cells}});
    }
    return frames;
}

QSize FrameDocument::readSize(DocumentReader &reader, const QJsonObject &object, const QJsonArray &frames,
                              QLatin1String cellsKey, int fallback)
{
    const auto side = [&](QLatin1String key) {
        return DocumentValue::integer(object, key, 0, Animation::MaximumSide, fallback);
    };
    const QSize size(side(Width), side(Height));
    qsizetype implied = 0;
    for (const QJsonValue &frame : frames) {
        const qsizetype written = frame.toObject().value(cellsKey).toArray().size();
        implied += std::max<qsizetype>(0, qsizetype(size.width()) * size.height() - written);
    }
    if (implied > reader.impliedCells)
        return {fallback, fallback};
    reader.impliedCells -= implied;
    return size;
}

void FrameDocument::read(Animation &animation, const QJsonArray &frames, QLatin1String cellsKey, FrameIds ids)
{
    for (const QJsonValue &value : frames) {
        const QJsonObject object = value.toObject();
        AnimationFrame *frame = animation.addFrame();
        const QSignalBlocker unseen(frame); // its animation would look for it among all frames, each time
        if (ids == FrameIds::Restored)
            frame->setId(DocumentValue::id(object, Id));
        frame->setCells(readCells(object.value(cellsKey).toArray(), animation.size()));
    }
}
