#pragma once

#include <QImage>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QSize>
#include <QUuid>

#include <memory>
#include <vector>

/// One picture of an animation: a grid of cells, each naming a tile or a sprite and its orientation.
class AnimationFrame : public QObject
{
    Q_OBJECT

public:
    /// What one cell shows.
    struct Cell
    {
        int index = 0; ///< tile of the tile set, or sprite of the bank
        int offset = 0; ///< palette offset 0–15 (tile animations)
        bool flip = false;
        bool mirror = false;
        bool rotate = false;

        bool operator==(const Cell &) const = default;
    };

    /// A list of rows, each a list of cells: a cell is found at [row][column].
    using Cells = QList<QList<Cell>>;

    /// A frame of zeroed cells.
    explicit AnimationFrame(QSize size, QObject *parent = nullptr);

    [[nodiscard]] QUuid id() const { return m_id; }
    void setId(const QUuid &id) { m_id = id; }

    /// Width of the first row and number of rows.
    [[nodiscard]] QSize size() const;
    /// Cuts the grid, or extends it by zeroed cells, at the right and at the bottom. Silent.
    void resize(QSize size);

    [[nodiscard]] const Cells &cells() const { return m_cells; }
    void setCells(const Cells &cells);

    /// The cell at a position; a zeroed one outside the frame.
    [[nodiscard]] Cell cell(int row, int column) const;

    // Each emits frameChanged(); positions outside the frame are ignored.
    void setIndex(int row, int column, int index);
    void setOffset(int row, int column, int offset);
    void setFlip(int row, int column, bool flip);
    void setMirror(int row, int column, bool mirror);
    void setRotate(int row, int column, bool rotate);

signals:
    void frameChanged(const QUuid &id);

private:
    friend class Animation;

    template <typename Value>
    void setField(int row, int column, Value Cell::*field, Value value);

    QUuid m_id = QUuid::createUuid();
    Cells m_cells;
};

/// What tile animations and sprite animations share: a name, a size in cells, a delay, and the frames
/// in play order.
///
/// The animation owns its frames and gives all of them its size. Changes are announced by signals,
/// copies and index maintenance are silent.
class Animation : public QObject
{
    Q_OBJECT

public:
    /// What the cells of an animation name.
    enum Kind { Tiles = 0, Sprites = 1 };

    /// The largest width and height in cells that an animation takes: far more than any editor offers, and
    /// small enough that a damaged project cannot ask for gigabytes.
    static constexpr int MaximumSide = 256;

    /// The contents that undo restores.
    struct State
    {
        struct Frame
        {
            QUuid id;
            AnimationFrame::Cells cells;

            bool operator==(const Frame &) const = default;
        };

        QSize size;
        int delay = 0;
        QList<Frame> frames;

        bool operator==(const State &) const = default;
    };

    Animation(int kind, const QString &name, QObject *parent = nullptr);

    /// A small picture for lists that fits into size, in pixels.
    [[nodiscard]] virtual QImage preview(const QSize &size) const = 0;

    [[nodiscard]] QUuid id() const { return m_id; }
    void setId(const QUuid &id) { m_id = id; }
    [[nodiscard]] QString name() const { return m_name; }
    [[nodiscard]] QSize size() const { return m_size; }
    /// Ticks of 20 ms that a frame is shown; 0 for an animation that stands still.
    [[nodiscard]] int delay() const { return m_delay; }
    [[nodiscard]] int kind() const { return m_kind; }
    /// Width and height of a cell in pixels.
    [[nodiscard]] int cellSize() const { return m_kind == Tiles ? 8 : 16; }

    [[nodiscard]] int frameCount() const { return static_cast<int>(m_frames.size()); }
    /// The frame at index; the first one for any other index; null in an animation without frames.
    [[nodiscard]] QPointer<AnimationFrame> frame(int index) const;
    /// Appends an empty frame.
    QPointer<AnimationFrame> addFrame();
    /// Destroys a frame; in place of the last one an empty one appears.
    void deleteFrame(int index);
    /// Destroys all frames, silently.
    void clearFrames();

    /// Takes size and frames of another animation, silently; with keepIds also the ids of the frames.
    void copyFrom(const Animation &source, bool keepIds);

    [[nodiscard]] State state() const;
    void restore(const State &state);

    // These follow changes of the tile set or bank that the cells name. They are silent.

    /// Indexes above the deleted one shrink by one, the deleted one becomes 0.
    void indexDeleted(int index);
    /// Indexes from the inserted one on grow by one.
    void indexInserted(int index);
    void swapIndexes(int first, int second);
    /// The index from becomes to; those between close up.
    void indexMoved(int from, int to);

signals:
    void nameChanged(const QString &name);
    void sizeChanged(QSize size);
    /// A frame changed; −1 for one that is no longer part of the animation.
    void frameChanged(int index);
    /// Frames were added, removed or replaced.
    void contentChanged();
    void delayChanged(int delay);

public slots:
    void setName(const QString &name);
    void setWidth(int w);
    void setHeight(int h);
    /// Resizes every frame; each side is held within 0 … MaximumSide.
    void setSize(QSize size);
    void setDelay(int delay);

private slots:
    void frameEdited();

private:
    AnimationFrame *appendFrame();

    /// Replaces every index by what change(index) returns, touching only rows that change.
    template <typename Change>
    void mapIndexes(Change change);

    std::vector<std::unique_ptr<AnimationFrame>> m_frames;
    int m_kind;
    QUuid m_id = QUuid::createUuid();
    QString m_name;
    QSize m_size{1, 1};
    int m_delay = 0;
};
