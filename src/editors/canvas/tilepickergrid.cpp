#include "editors/canvas/tilepickergrid.h"

#include "editors/canvas/cellmarks.h"
#include "editors/canvas/dragdata.h"
#include "model/palette.h"
#include "ui/gridkeys.h"

#include <QApplication>
#include <QDrag>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int TileSize = 8;
constexpr std::array Factors{1, 2, 4, 8, 16};
/// The tilemap reaches tiles 0 to 511; tiles behind the one after them are shaded.
constexpr int LastUnshaded = 512;

} // namespace

TilePickerGrid::TilePickerGrid(QWidget *parent)
    : QWidget(parent)
    , m_menu(new QMenu(this))
    , m_factors(new QActionGroup(this))
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setAcceptDrops(true);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Tiles"));
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    buildMenu();
}

void TilePickerGrid::buildMenu()
{
    m_menu->addAction(tr("Zoom In"), this, [this] { setMagnification(m_magnification + 1); });
    m_menu->addAction(tr("Zoom Out"), this, [this] { setMagnification(m_magnification - 1); });
    buildFactors();
    m_menu->addSeparator();
    addTileAction(tr("Clear"), &TilePickerGrid::clearTile);
    addTileAction(tr("Copy Image"), &TilePickerGrid::copyTileImage);
    addTileAction(tr("Paste Image"), &TilePickerGrid::pasteTileImage);
    addTileAction(tr("Insert"), &TilePickerGrid::insertTile);
    addTileAction(tr("Delete"), &TilePickerGrid::deleteTile);
}

void TilePickerGrid::buildFactors()
{
    m_factors->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
    for (const int factor : Factors) {
        QAction *action = m_menu->addAction(tr("%1x").arg(factor));
        action->setCheckable(true);
        action->setData(factor);
        action->setChecked(factor == m_magnification);
        m_factors->addAction(action);
        connect(action, &QAction::triggered, this, [this, action, factor] {
            setMagnification(factor);
            action->setChecked(true); // choosing the factor in force must not clear its mark
        });
    }
}

void TilePickerGrid::addTileAction(const QString &text, void (TilePickerGrid::*edit)())
{
    m_menu->addAction(text, this, [this, edit] {
        if (m_tileSet && m_menuTile >= 0 && m_menuTile < m_tileSet->count())
            (this->*edit)();
    });
}

void TilePickerGrid::clearTile()
{
    if (m_tileSet->palette())
        m_tileSet->clearImage(m_menuTile);
}

void TilePickerGrid::copyTileImage()
{
    m_copySource = m_menuTile;
}

void TilePickerGrid::pasteTileImage()
{
    if (m_copySource >= 0)
        m_tileSet->copyTile(m_copySource, m_menuTile);
}

void TilePickerGrid::insertTile()
{
    m_tileSet->insertTile(m_menuTile);
}

void TilePickerGrid::deleteTile()
{
    m_tileSet->deleteTile(m_menuTile);
}

void TilePickerGrid::setTileSet(const QPointer<TileSet> &tileSet)
{
    if (m_tileSet)
        m_tileSet->disconnect(this);
    m_tileSet = tileSet;
    m_selected = m_hovered = m_menuTile = m_copySource = m_dropTarget = -1;
    m_pressPoint = {-1, -1};
    if (m_tileSet) {
        connect(m_tileSet, &TileSet::tileChanged, this, qOverload<>(&QWidget::update));
        connect(m_tileSet, &TileSet::tileSwapped, this, qOverload<>(&QWidget::update));
        connect(m_tileSet, &TileSet::tileInserted, this, &TilePickerGrid::refreshSize);
        connect(m_tileSet, &TileSet::tileDeleted, this, &TilePickerGrid::refreshSize);
        connect(m_tileSet, &TileSet::restored, this, &TilePickerGrid::refreshSize);
        connect(m_tileSet, &QObject::destroyed, this, [this] { setTileSet(nullptr); });
    }
    refreshSize();
}

void TilePickerGrid::refreshSize()
{
    const int count = m_tileSet ? m_tileSet->count() : 0;
    if (m_selected >= count)
        m_selected = count - 1;
    if (m_hovered >= count)
        m_hovered = -1;
    updateGeometry();
    update();
}

void TilePickerGrid::setMagnification(int magnification)
{
    const int clamped = std::clamp(magnification, MinimumMagnification, MaximumMagnification);
    if (clamped == m_magnification)
        return;
    m_magnification = clamped;
    for (QAction *action : m_factors->actions())
        action->setChecked(action->data().toInt() == clamped);
    refreshSize();
    emit magnificationChanged(clamped);
}

void TilePickerGrid::setSelectedIndex(int index)
{
    m_selected = m_tileSet && index < m_tileSet->count() ? index : -1;
    update();
}

// ---- Layout ---------------------------------------------------------------------------------

int TilePickerGrid::cell() const
{
    return m_magnification * TileSize;
}

int TilePickerGrid::columns(int width) const
{
    return std::max(1, width / cell());
}

int TilePickerGrid::heightForWidth(int width) const
{
    return m_tileSet ? (m_tileSet->count() / columns(width) + 1) * cell() : 16 * m_magnification;
}

QSize TilePickerGrid::sizeHint() const
{
    const int width = 16 * cell();
    return {width, heightForWidth(width)};
}

int TilePickerGrid::indexAt(QPoint point) const
{
    if (!m_tileSet || point.x() < 0 || point.y() < 0)
        return -1;
    const int column = point.x() / cell();
    if (column >= columns(width()))
        return -1;
    const int index = point.y() / cell() * columns(width()) + column;
    return index < m_tileSet->count() ? index : -1;
}

QRect TilePickerGrid::cellRect(int index) const
{
    const int across = columns(width());
    return {index % across * cell(), index / across * cell(), cell(), cell()};
}

// ---- Painting -------------------------------------------------------------------------------

void TilePickerGrid::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.fillRect(event->rect(), Qt::black);
    if (!m_tileSet)
        return;
    // Only the rows that are on the screen.
    const int across = columns(width());
    const int first = event->rect().top() / cell() * across;
    const int last = std::min((event->rect().bottom() / cell() + 1) * across, m_tileSet->count());
    // A tile may still have the colours of a palette that was bound before.
    const QPointer<Palette> palette = m_tileSet->palette();
    const QList<QRgb> colours = palette ? palette->colourTable() : QList<QRgb>();
    for (int index = first; index < last; ++index) {
        QImage image = m_tileSet->image(index);
        if (palette)
            image.setColorTable(colours);
        painter.drawImage(cellRect(index).adjusted(0, 0, -1, -1), image);
    }
    paintMarks(painter);
    for (int index = std::max(first, LastUnshaded + 1); index < last; ++index)
        painter.fillRect(cellRect(index), QColor(0, 0, 0, 64));
}

void TilePickerGrid::paintMarks(QPainter &painter) const
{
    painter.setBrush(Qt::NoBrush);
    const auto frameOf = [this](int index) { return cellRect(index).adjusted(0, 0, -1, -1); };
    if (m_pointerInside && m_dropTarget >= 0) {
        painter.setPen(Qt::black);
        painter.drawRect(frameOf(m_dropTarget));
    } else if (m_pointerInside && m_hovered >= 0) {
        CellMarks::paintHovered(painter, frameOf(m_hovered));
    }
    if (m_selected >= 0)
        CellMarks::paintDotted(painter, frameOf(m_selected).adjusted(0, 0, -1, -1), 2);
}

// ---- Mouse and keyboard ---------------------------------------------------------------------

void TilePickerGrid::choose(int index)
{
    if (index < 0 || index == m_selected)
        return;
    m_selected = index;
    update();
    emit selectedIndexChanged(index);
}

void TilePickerGrid::mousePressEvent(QMouseEvent *event)
{
    m_pressPoint = event->position().toPoint();
}

void TilePickerGrid::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint point = event->position().toPoint();
    m_pointerInside = rect().contains(point);
    const bool dragged = (event->buttons() & Qt::LeftButton)
        && (point - m_pressPoint).manhattanLength() >= QApplication::startDragDistance();
    if (dragged && indexAt(m_pressPoint) >= 0) {
        m_hovered = -1;
        startDrag();
        return;
    }
    const int index = indexAt(point);
    setToolTip(index < 0 ? QString()
                         : tr("Index: %1\nPalette Offset: %2").arg(index).arg(m_tileSet->tileOffset(index)));
    if (index == m_hovered)
        return;
    m_hovered = index;
    update();
}

void TilePickerGrid::mouseReleaseEvent(QMouseEvent *event)
{
    const int index = indexAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton) {
        choose(index);
    } else if (event->button() == Qt::RightButton) {
        m_menuTile = index;
        m_menu->popup(event->globalPosition().toPoint());
    }
}

void TilePickerGrid::mouseDoubleClickEvent(QMouseEvent *event)
{
    const int index = indexAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && index >= 0)
        emit itemDoubleClicked(index + 1);
}

void TilePickerGrid::leaveEvent(QEvent *event)
{
    m_pointerInside = false;
    m_hovered = -1;
    update();
    QWidget::leaveEvent(event);
}

void TilePickerGrid::wheelEvent(QWheelEvent *event)
{
    if (!(event->modifiers() & Qt::ControlModifier)) {
        QWidget::wheelEvent(event);
        return;
    }
    setMagnification(m_magnification + (event->angleDelta().y() < 1 ? -1 : 1));
    event->accept();
}

void TilePickerGrid::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (m_selected >= 0)
            emit itemDoubleClicked(m_selected + 1);
        return;
    }
    const int step = GridKeys::step(event->key(), columns(width()));
    if (step == 0) {
        QWidget::keyPressEvent(event);
        return;
    }
    const int count = m_tileSet ? m_tileSet->count() : 0;
    const int moved = std::max(m_selected, 0) + step;
    if (moved >= 0 && moved < count)
        choose(moved);
}

void TilePickerGrid::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() != QContextMenuEvent::Keyboard || m_selected < 0) {
        event->ignore();
        return;
    }
    m_menuTile = m_selected;
    m_menu->popup(mapToGlobal(cellRect(m_selected).center()));
}

// ---- Drag and drop --------------------------------------------------------------------------

void TilePickerGrid::startDrag()
{
    const int index = indexAt(m_pressPoint);
    auto *drag = new QDrag(this);
    drag->setMimeData(TileDrag{index, m_tileSet->tileOffset(index)}.toMimeData());
    drag->setPixmap(QPixmap::fromImage(m_tileSet->image(index).scaled(cell(), cell())));
    drag->exec(Qt::MoveAction);
}

void TilePickerGrid::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->mimeData()->hasFormat(TileDrag::mimeType()))
        event->acceptProposedAction();
}

void TilePickerGrid::dragMoveEvent(QDragMoveEvent *event)
{
    m_pointerInside = true;
    const int index = indexAt(event->position().toPoint());
    if (index != m_dropTarget) {
        m_dropTarget = index;
        update();
    }
    event->acceptProposedAction();
}

void TilePickerGrid::dragLeaveEvent(QDragLeaveEvent *)
{
    m_dropTarget = -1;
    update();
}

void TilePickerGrid::dropEvent(QDropEvent *event)
{
    if (!event->mimeData()->hasFormat(TileDrag::mimeType()))
        return;
    event->acceptProposedAction();
    const int source = indexAt(m_pressPoint);
    const int target = m_dropTarget;
    if (m_tileSet && source >= 0 && target >= 0) {
        if (event->modifiers() == Qt::ShiftModifier)
            m_tileSet->copyTile(source, target);
        else if (event->modifiers() == Qt::NoModifier)
            m_tileSet->moveTile(source, target);
    }
    m_dropTarget = -1;
    update();
}
