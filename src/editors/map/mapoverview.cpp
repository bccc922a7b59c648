#include "editors/map/mapoverview.h"

#include "editors/map/mapgrid.h"
#include "editors/map/mappainter.h"
#include "model/overviewpicture.h"

#include <QMouseEvent>
#include <QPainter>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace MapEditor {

namespace {

constexpr int Border = 2;
constexpr int Margin = 8; ///< to the edges of the grid
constexpr int Delay = 80; ///< milliseconds from a change to its picture
constexpr int RareDelay = 1000; ///< while nothing but colours changes that it does not show
constexpr int FewSteps = 3; ///< of colours, after which that is so

} // namespace

MapOverview::MapOverview(MapGrid *grid) : QWidget(grid), m_grid(grid), m_soon(new QTimer(this))
{
    setAccessibleName(tr("Overview"));
    setToolTip(tr("Drag to scroll the map"));
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_OpaquePaintEvent);
    m_soon->setSingleShot(true);
    connect(m_soon, &QTimer::timeout, this, &MapOverview::render);
    connect(grid, &MapGrid::painted, this, &MapOverview::renderSoon);
    connect(grid, &MapGrid::scrollPositionChanged, this, qOverload<>(&QWidget::update));
    grid->installEventFilter(this);
}

void MapOverview::place()
{
    const QSize map = m_grid->map() ? m_grid->map()->size() : QSize();
    const QSize room = (m_grid->size() / 3).boundedTo({Extent, Extent});
    const QSize picture = map.isEmpty() ? QSize(1, 1) : map.scaled(room, Qt::KeepAspectRatio).expandedTo({8, 8});
    const QSize outer = picture.grownBy({Border, Border, Border, Border});
    setGeometry(
        QRect(QPoint(m_grid->width() - outer.width() - Margin, m_grid->height() - outer.height() - Margin), outer));
}

void MapOverview::showEvent(QShowEvent *)
{
    place();
    render();
}

bool MapOverview::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::Resize && isVisible())
        m_soon->start(Delay);
    return false;
}

void MapOverview::renderSoon(bool coloursAlone)
{
    if (!isVisible())
        return;
    m_coloursAlone = m_coloursAlone && coloursAlone;
    const int delay = m_coloursAlone && m_stepsUnseen >= FewSteps ? RareDelay : Delay;
    if (!m_soon->isActive() || m_soon->remainingTime() > delay)
        m_soon->start(delay);
}

void MapOverview::render()
{
    if (!isVisible())
        return;
    const bool coloursAlone = std::exchange(m_coloursAlone, true);
    place();
    const QPointer<Map> map = m_grid->map();
    const QImage picture = map ? overviewPicture(*map, picturePlace().size()) : QImage();
    if (picture != m_picture) {
        m_picture = picture;
        m_stepsUnseen = 0;
        update();
    } else if (coloursAlone) {
        ++m_stepsUnseen;
    }
}

QRect MapOverview::picturePlace() const
{
    return rect().adjusted(Border, Border, -Border, -Border);
}

QRect MapOverview::frame() const
{
    const QSize map = m_grid->map() ? m_grid->map()->size() : QSize();
    if (map.isEmpty())
        return {};
    const QRect place = picturePlace();
    const QRect shown = m_grid->viewport().visibleCells();
    const auto x = [&](int cell) { return place.left() + int(qint64(cell) * place.width() / map.width()); };
    const auto y = [&](int cell) { return place.top() + int(qint64(cell) * place.height() / map.height()); };
    const QRect exact(QPoint(x(shown.left()), y(shown.top())),
                      QPoint(x(shown.right() + 1) - 1, y(shown.bottom() + 1) - 1));
    return QRect(exact.topLeft(), exact.size().expandedTo({4, 4}));
}

void MapOverview::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Mid));
    painter.fillRect(picturePlace(), Qt::black);
    painter.drawImage(picturePlace(), m_picture);
    MapPainter::paintOutline(painter, frame());
}

void MapOverview::mousePressEvent(QMouseEvent *event)
{
    m_press = event->position().toPoint();
    if (!frame().contains(m_press))
        scrollTo(m_press);
    m_scroll = m_grid->viewport().scroll;
}

void MapOverview::mouseMoveEvent(QMouseEvent *event)
{
    const QSize map = m_grid->map() ? m_grid->map()->size() : QSize();
    const QRect place = picturePlace();
    if (!(event->buttons() & Qt::LeftButton) || map.isEmpty() || place.isEmpty())
        return;
    const QPointF way = event->position() - m_press;
    m_grid->scrollTo(
        m_scroll + QPointF(way.x() * map.width() / place.width(), way.y() * map.height() / place.height()).toPoint());
}

void MapOverview::wheelEvent(QWheelEvent *event)
{
    event->accept(); // and do not scroll the map beneath
}

/// Brings the cell under a point to the middle of the view.
void MapOverview::scrollTo(QPoint point)
{
    const QSize map = m_grid->map() ? m_grid->map()->size() : QSize();
    const QRect place = picturePlace();
    if (map.isEmpty() || place.isEmpty())
        return;
    const QPoint inside = point - place.topLeft();
    const QPoint cell(int(qint64(inside.x()) * map.width() / place.width()),
                      int(qint64(inside.y()) * map.height() / place.height()));
    const QSize shown = m_grid->viewport().visibleSize();
    m_grid->scrollTo(cell - QPoint(shown.width() / 2, shown.height() / 2));
}

} // namespace MapEditor
