#include "editors/map/terrainmarks.h"

#include "editors/map/anchorpad.h"
#include "model/palette.h"
#include "ui/keycursor.h"
#include "ui/reveal.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <array>

namespace MapEditor {

namespace {

constexpr int TileExtent = 40;
constexpr int Gap = 4;
constexpr int Pitch = TileExtent + Gap;
constexpr int Side = 3; ///< fields of a tile
constexpr int Middle = 0;

/// The marks of the nine fields, row by row.
constexpr std::array Fields{
    Terrain::NorthWest + 0, Terrain::North + 0,     Terrain::NorthEast + 0, Terrain::West + 0,     Middle,
    Terrain::East + 0,      Terrain::SouthWest + 0, Terrain::South + 0,     Terrain::SouthEast + 0};

QRect fieldRect(const QRect &tile, int field)
{
    const auto edge = [](int from, int third) { return from + third * TileExtent / 3; };
    const QPoint first(edge(tile.left(), field % 3), edge(tile.top(), field / 3));
    return {first, QPoint(edge(tile.left(), field % 3 + 1) - 1, edge(tile.top(), field / 3 + 1) - 1)};
}

/// Marks with the keyboard.
class MarkKeys final : public KeyCursor
{
public:
    explicit MarkKeys(TerrainMarks *marks) : KeyCursor(marks), m_marks(marks)
    {
        connect(this, &KeyCursor::moved, marks, [marks](QPoint field) { ::reveal(marks, marks->fieldArea(field)); });
        connect(marks, &TerrainMarks::edited, this, &CellTable::tellContent);
    }

    QSize size() const override { return m_marks->fieldTable(); }
    bool exists(QPoint field) const override { return contains(field) && m_marks->hasTile(m_marks->tileOf(field)); }
    QRect area(QPoint field) const override { return m_marks->fieldArea(field); }
    QPoint cellAt(QPoint point) const override { return m_marks->fieldAt(point); }
    QString text(QPoint field) const override { return m_marks->textOf(field); }

protected:
    QRect visibleCells() const override { return {QPoint(0, 0), size()}; }
    void scrollTo(QPoint) override { }
    void pick(QPoint field, bool) override { choose(field); }
    void select(const QRect &) override { }
    void selectNone() override { }
    bool selectsFrom(QPoint) const override { return false; }
    void openMenu(QPoint) override { }

private:
    TerrainMarks *const m_marks;
};

} // namespace

TerrainMarks::TerrainMarks(QWidget *parent) : QWidget(parent)
{
    setAccessibleName(tr("Marks of the terrain"));
    setFocusPolicy(Qt::StrongFocus);
    new MarkKeys(this); // which is its child
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void TerrainMarks::show(const QPointer<TileSet> &tileSet, const Terrain &terrain)
{
    if (m_tileSet)
        m_tileSet->disconnect(this);
    m_tileSet = tileSet;
    if (m_tileSet)
        connect(m_tileSet, &TileSet::shownColoursChanged, this, qOverload<>(&QWidget::update));
    m_terrain = terrain;
    m_marking.reset();
    updateGeometry();
    update();
}

int TerrainMarks::columns(int width) const
{
    return std::max(1, (width - Gap) / Pitch);
}

int TerrainMarks::heightForWidth(int width) const
{
    const int count = m_tileSet ? m_tileSet->count() : 0;
    return (count + columns(width) - 1) / columns(width) * Pitch + Gap;
}

QSize TerrainMarks::sizeHint() const
{
    constexpr int Columns = 8;
    const int width = Columns * Pitch + Gap;
    return {width, heightForWidth(width)};
}

QRect TerrainMarks::tileRect(int index) const
{
    const int across = columns(width());
    return {Gap + index % across * Pitch, Gap + index / across * Pitch, TileExtent, TileExtent};
}

QSize TerrainMarks::fieldTable() const
{
    const int count = m_tileSet ? m_tileSet->count() : 0;
    const int across = columns(width());
    return QSize(std::min(count, across), (count + across - 1) / across) * Side;
}

int TerrainMarks::tileOf(QPoint field) const
{
    return field.y() / Side * columns(width()) + field.x() / Side;
}

QRect TerrainMarks::fieldArea(QPoint field) const
{
    return fieldRect(tileRect(tileOf(field)), field.y() % Side * Side + field.x() % Side);
}

QPoint TerrainMarks::fieldAt(QPoint point) const
{
    const QPoint within(point.x() % Pitch - Gap, point.y() % Pitch - Gap);
    return QPoint(point.x() / Pitch, point.y() / Pitch) * Side
        + QPoint(std::max(within.x(), 0), std::max(within.y(), 0)) * Side / TileExtent;
}

QString TerrainMarks::textOf(QPoint field) const
{
    const int index = tileOf(field);
    const int place = field.y() % Side * Side + field.x() % Side;
    const int mark = Fields[size_t(place)];
    const Terrain::Tile *tile = m_terrain.find(index);
    const bool marked = tile && (mark == Middle || tile->marks & mark);
    const QString name = QStringLiteral("%1, %2").arg(index).arg(AnchorPad::nameOf(place));
    return marked ? name + QStringLiteral(" \u2713") : name;
}

void TerrainMarks::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.fillRect(event->rect(), palette().color(QPalette::Base));
    if (!m_tileSet || !m_tileSet->palette())
        return;
    const int across = columns(width());
    const int first = std::max(0, event->rect().top() / Pitch - 1) * across;
    const int last = std::min(m_tileSet->count(), (event->rect().bottom() / Pitch + 1) * across);
    for (int index = first; index < last; ++index) {
        const QRect place = tileRect(index);
        const QImage image = m_tileSet->shownTileImage(index, false, false, false, m_tileSet->tileOffset(index));
        painter.drawImage(place, image.convertToFormat(QImage::Format_RGB32));
        if (const Terrain::Tile *tile = m_terrain.find(index))
            paintMarks(painter, place, tile->marks);
        else
            painter.fillRect(place, QColor(0, 0, 0, 110));
    }
}

void TerrainMarks::paintMarks(QPainter &painter, const QRect &tile, int marks) const
{
    constexpr QColor Marked(255, 220, 0, 150);
    for (int field = 0; field < int(Fields.size()); ++field) {
        const int mark = Fields[size_t(field)];
        const QRect place = fieldRect(tile, field);
        if (mark == Middle || marks & mark)
            painter.fillRect(place, Marked);
        painter.setPen(QColor(0, 0, 0, 120));
        if (m_terrain.corners || mark == Middle || mark & Terrain::Sides)
            painter.drawRect(place.adjusted(0, 0, -1, -1));
    }
}

void TerrainMarks::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton || event->button() == Qt::RightButton) {
        m_marking = event->button() == Qt::LeftButton;
        markAt(event->position().toPoint());
    }
}

void TerrainMarks::mouseMoveEvent(QMouseEvent *event)
{
    if (m_marking)
        markAt(event->position().toPoint());
}

void TerrainMarks::mouseReleaseEvent(QMouseEvent *)
{
    m_marking.reset();
}

void TerrainMarks::markAt(QPoint point)
{
    const int column = point.x() / Pitch;
    const int index = point.y() / Pitch * columns(width()) + column;
    if (!m_tileSet || point.x() < 0 || point.y() < 0 || column >= columns(width()) || index >= m_tileSet->count())
        return;
    const QRect tile = tileRect(index);
    for (int field = 0; field < int(Fields.size()); ++field) {
        if (!fieldRect(tile, field).contains(point))
            continue;
        const int mark = Fields[size_t(field)];
        const Terrain before = m_terrain;
        const Terrain::Tile *present = m_terrain.find(index);
        const int marks = present ? present->marks : 0;
        if (*m_marking)
            m_terrain.mark(index, marks | mark);
        else if (mark == Middle)
            m_terrain.remove(index);
        else if (present)
            m_terrain.mark(index, marks & ~mark);
        if (m_terrain != before) {
            update(tile);
            emit edited();
        }
    }
}

} // namespace MapEditor
