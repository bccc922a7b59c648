#include "store/animationdocument.h"

#include "model/animation.h"
#include "store/documentreader.h"

#include <QJsonArray>
#include <QSignalBlocker>

#include <algorithm>

namespace {

constexpr QLatin1String Id("id");
constexpr QLatin1String Name("name");
constexpr QLatin1String Width("width");
constexpr QLatin1String Height("height");
constexpr QLatin1String Delay("delay");
constexpr QLatin1String Frames("frames");
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

QJsonArray writeFrames(const Animation &animation, QLatin1String cellsKey)
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

QSize readSize(DocumentReader &reader, const QJsonObject &object, const QJsonArray &frames, QLatin1String cellsKey,
               int fallbackSide)
{
    const auto side = [&](QLatin1String key) {
        return DocumentValue::integer(object, key, 0, Animation::MaximumSide, fallbackSide);
    };
    const QSize size(side(Width), side(Height));
    qsizetype implied = 0;
    for (const QJsonValue &frame : frames) {
        const qsizetype written = frame.toObject().value(cellsKey).toArray().size();
        implied += std::max<qsizetype>(0, qsizetype(size.width()) * size.height() - written);
    }
    if (implied > reader.impliedCells)
        return {fallbackSide, fallbackSide};
    reader.impliedCells -= implied;
    return size;
}

} // namespace

QJsonObject AnimationDocument::write(const Animation &animation, QLatin1String cellsKey)
{
    return {
        {Id, animation.id().toString()},     {Name, animation.name()},   {Width, animation.size().width()},
        {Height, animation.size().height()}, {Delay, animation.delay()}, {Frames, writeFrames(animation, cellsKey)},
    };
}

void AnimationDocument::read(DocumentReader &reader, Animation &animation, const QJsonObject &object,
                             QLatin1String cellsKey, int fallbackSide, FrameIds ids)
{
    const QJsonArray frames = object.value(Frames).toArray();
    animation.setSize(readSize(reader, object, frames, cellsKey, fallbackSide));
    animation.setDelay(DocumentValue::delay(object, Delay));
    for (const QJsonValue &value : frames) {
        const QJsonObject stored = value.toObject();
        AnimationFrame *frame = animation.addFrame();
        const QSignalBlocker unseen(frame); // its animation would look for it among all frames, each time
        if (ids == FrameIds::Restored)
            frame->setId(DocumentValue::id(stored, Id));
        frame->setCells(readCells(stored.value(cellsKey).toArray(), animation.size()));
    }
}
