#include "model/animation.h"

#include <algorithm>

static_assert(sizeof(AnimationFrame::Cell) == 12, "frames of large animations are many cells");

AnimationFrame::AnimationFrame(QSize size, QObject *parent)
    : QObject(parent)
    , m_cells(size.height(), QList<Cell>(size.width()))
{ }

QSize AnimationFrame::size() const
{
    return m_cells.isEmpty() ? QSize(0, 0)
                             : QSize(static_cast<int>(m_cells.first().size()), static_cast<int>(m_cells.size()));
}

void AnimationFrame::resize(QSize size)
{
    m_cells.resize(size.height());
    for (QList<Cell> &row : m_cells)
        row.resize(size.width());
}

void AnimationFrame::setCells(const Cells &cells)
{
    m_cells = cells;
    emit frameChanged(m_id);
}

AnimationFrame::Cell AnimationFrame::cell(int row, int column) const
{
    return m_cells.value(row).value(column);
}

template <typename Value>
void AnimationFrame::setField(int row, int column, Value Cell::*field, Value value)
{
    if (row < 0 || row >= m_cells.size() || column < 0 || column >= m_cells.at(row).size())
        return;
    m_cells[row][column].*field = value;
    emit frameChanged(m_id);
}

void AnimationFrame::setIndex(int row, int column, int index)
{
    setField(row, column, &Cell::index, index);
}

void AnimationFrame::setOffset(int row, int column, int offset)
{
    setField(row, column, &Cell::offset, offset);
}

void AnimationFrame::setFlip(int row, int column, bool flip)
{
    setField(row, column, &Cell::flip, flip);
}

void AnimationFrame::setMirror(int row, int column, bool mirror)
{
    setField(row, column, &Cell::mirror, mirror);
}

void AnimationFrame::setRotate(int row, int column, bool rotate)
{
    setField(row, column, &Cell::rotate, rotate);
}

Animation::Animation(int kind, const QString &name, QObject *parent) : QObject(parent), m_kind(kind), m_name(name) { }

QPointer<AnimationFrame> Animation::frame(int index) const
{
    if (m_frames.empty())
        return nullptr;
    return m_frames[index >= 0 && index < frameCount() ? static_cast<size_t>(index) : 0].get();
}

QPointer<AnimationFrame> Animation::addFrame()
{
    AnimationFrame *frame = appendFrame();
    emit contentChanged();
    return frame;
}

AnimationFrame *Animation::appendFrame()
{
    AnimationFrame *frame = m_frames.emplace_back(std::make_unique<AnimationFrame>(m_size, this)).get();
    connect(frame, &AnimationFrame::frameChanged, this, &Animation::frameEdited);
    return frame;
}

void Animation::deleteFrame(int index)
{
    if (index < 0 || index >= frameCount())
        return;
    m_frames.erase(m_frames.begin() + index);
    if (m_frames.empty())
        appendFrame();
    emit frameChanged(0);
    emit contentChanged();
}

void Animation::clearFrames()
{
    m_frames.clear();
}

void Animation::frameEdited()
{
    const auto found =
        std::find_if(m_frames.begin(), m_frames.end(), [this](const auto &frame) { return frame.get() == sender(); });
    emit frameChanged(found == m_frames.end() ? -1 : static_cast<int>(found - m_frames.begin()));
}

void Animation::setName(const QString &name)
{
    if (name == m_name)
        return;
    m_name = name;
    emit nameChanged(name);
}

void Animation::setWidth(int w)
{
    setSize(QSize(w, m_size.height()));
}

void Animation::setHeight(int h)
{
    setSize(QSize(m_size.width(), h));
}

void Animation::setSize(QSize size)
{
    size = size.expandedTo(QSize(0, 0)).boundedTo(QSize(MaximumSide, MaximumSide));
    if (size == m_size)
        return;
    m_size = size;
    for (const auto &frame : m_frames)
        frame->resize(size);
    emit sizeChanged(size);
}

void Animation::setDelay(int delay)
{
    m_delay = delay;
    emit delayChanged(delay);
}

void Animation::copyFrom(const Animation &source, bool keepIds)
{
    if (&source == this)
        return;
    clearFrames();
    m_size = source.m_size;
    for (const auto &original : source.m_frames) {
        AnimationFrame *frame = appendFrame();
        frame->m_cells = original->m_cells;
        if (keepIds)
            frame->m_id = original->m_id;
    }
}

Animation::State Animation::state() const
{
    State state{m_size, m_delay, {}};
    state.frames.reserve(frameCount());
    for (const auto &frame : m_frames)
        state.frames.append({frame->m_id, frame->m_cells});
    return state;
}

void Animation::restore(const State &state)
{
    clearFrames();
    m_size = state.size;
    m_delay = state.delay;
    for (const State::Frame &stored : state.frames) {
        AnimationFrame *frame = appendFrame();
        frame->m_id = stored.id;
        frame->m_cells = stored.cells;
    }
    emit sizeChanged(m_size);
    emit frameChanged(0);
    emit contentChanged();
}

template <typename Change>
void Animation::mapIndexes(Change change)
{
    const auto changes = [change](const AnimationFrame::Cell &cell) { return change(cell.index) != cell.index; };
    for (const auto &frame : m_frames) {
        for (qsizetype row = 0; row < frame->m_cells.size(); ++row) {
            const QList<AnimationFrame::Cell> &cells = frame->m_cells.at(row);
            if (std::none_of(cells.cbegin(), cells.cend(), changes))
                continue;
            for (AnimationFrame::Cell &cell : frame->m_cells[row])
                cell.index = change(cell.index);
        }
    }
}

void Animation::indexDeleted(int index)
{
    mapIndexes([index](int i) { return i == index ? 0 : i > index ? i - 1 : i; });
}

void Animation::indexInserted(int index)
{
    mapIndexes([index](int i) { return i >= index ? i + 1 : i; });
}

void Animation::indexMoved(int from, int to)
{
    const int step = from < to ? -1 : 1;
    const int first = std::min(from, to);
    const int last = std::max(from, to);
    mapIndexes([=](int i) { return i == from ? to : i >= first && i <= last ? i + step : i; });
}

void Animation::swapIndexes(int first, int second)
{
    mapIndexes([first, second](int i) { return i == first ? second : i == second ? first : i; });
}
