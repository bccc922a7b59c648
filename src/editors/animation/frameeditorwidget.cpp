#include "editors/animation/frameeditorwidget.h"

#include "editors/common/dragdata.h"
#include "ui/commands.h"
#include "ui/reveal.h"
#include "ui/widgetcells.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMenu>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

namespace AnimationEditor {

namespace {

constexpr int UsualCellSize = 8;
constexpr int LastOffset = 15;

QString yesOrNo(bool yes)
{
    return yes ? FrameEditorWidget::tr("Yes") : FrameEditorWidget::tr("No");
}

} // namespace

FrameEditorWidget::FrameEditorWidget(QWidget *parent) : QWidget(parent), m_menu(new QMenu(tr("Frame"), this))
{
    setAcceptDrops(true);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Cells of the frame"));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    buildMenu();
    tellCells();
    fitAnimation();
}

void FrameEditorWidget::tellCells()
{
    m_cells = new WidgetCells(this,
                              {.size = [this] { return frame() ? m_animation->size() : QSize(); },
                               .exists = {},
                               .area = [this](QPoint cell) { return cellRect(cell); },
                               .at = [this](QPoint point) { return cellAt(point); },
                               .text = [this](QPoint cell) { return textOf(cell); },
                               .current = [this] { return m_selected; },
                               .choose = [this](QPoint cell) { setSelectedCell(cell); },
                               .selected = {}});
}

QString FrameEditorWidget::textOf(QPoint cell) const
{
    const AnimationFrame::Cell shown = frame()->cell(cell.y(), cell.x());
    const QString text = m_animation->kind() == Animation::Sprites ? tr("Column %1, row %2, sprite %3")
                                                                   : tr("Column %1, row %2, tile %3");
    return text.arg(cell.x()).arg(cell.y()).arg(shown.index);
}

void FrameEditorWidget::buildMenu()
{
    const auto add = [this](const char *name, const QString &text, void (FrameEditorWidget::*setter)(bool)) {
        QAction *action = m_menu->addAction(text);
        action->setCheckable(true);
        connect(action, &QAction::triggered, this, setter);
        return Commands::addPointed(action, QLatin1String(name));
    };
    m_rotated = add("frameMenu.rotated", tr("Rotated"), &FrameEditorWidget::setRotated);
    m_flipped = add("frameMenu.flipped", tr("Flipped"), &FrameEditorWidget::setFlipped);
    m_mirrored = add("frameMenu.mirrored", tr("Mirrored"), &FrameEditorWidget::setMirrored);
}

// What is shown

void FrameEditorWidget::setAnimation(Animation *animation)
{
    if (m_animation)
        m_animation->disconnect(this);
    m_animation = animation;
    m_currentFrame = 0;
    m_dropTarget = NoCell;
    setSelectedCell(NoCell);
    if (animation) {
        connect(animation, &Animation::sizeChanged, this, &FrameEditorWidget::fitAnimation);
        connect(animation, &Animation::frameChanged, this, qOverload<>(&QWidget::update));
        connect(animation, &Animation::contentChanged, this, qOverload<>(&QWidget::update));
        connect(animation, &QObject::destroyed, this, [this] { setAnimation(nullptr); });
    }
    fitAnimation();
}

void FrameEditorWidget::setCellRenderer(const CellRenderer &renderer)
{
    m_renderer = renderer;
    update();
}

void FrameEditorWidget::setCurrentFrame(int index)
{
    if (index == m_currentFrame)
        return;
    m_currentFrame = index;
    update();
    emit currentFrameChanged(index);
}

void FrameEditorWidget::setOnionSkin(bool on)
{
    m_onionSkin = on;
    update();
}

AnimationFrame *FrameEditorWidget::frame() const
{
    return m_animation ? m_animation->frame(m_currentFrame).data() : nullptr;
}

// Layout

QSize FrameEditorWidget::gridSize() const
{
    return m_animation ? m_animation->size() : QSize(1, 1);
}

int FrameEditorWidget::cellSize() const
{
    return (m_animation ? m_animation->cellSize() : UsualCellSize) * m_zoom;
}

QSize FrameEditorWidget::sizeHint() const
{
    return gridSize() * cellSize();
}

void FrameEditorWidget::fitAnimation()
{
    if (m_selected != NoCell && !contains(m_selected))
        setSelectedCell(NoCell);
    updateGeometry();
    resize(sizeHint());
    update();
}

bool FrameEditorWidget::contains(QPoint cell) const
{
    return m_animation && QRect(QPoint(), m_animation->size()).contains(cell);
}

QPoint FrameEditorWidget::cellAt(QPoint position) const
{
    // division rounds towards 0: a position just left of the grid would hit it
    if (position.x() < 0 || position.y() < 0)
        return NoCell;
    const QPoint cell(position.x() / cellSize(), position.y() / cellSize());
    return contains(cell) ? cell : NoCell;
}

QRect FrameEditorWidget::cellRect(QPoint cell) const
{
    return {cell * cellSize(), QSize(cellSize(), cellSize())};
}

void FrameEditorWidget::setZoom(int zoom)
{
    m_zoom = std::clamp(zoom, 1, MaximumZoom);
    fitAnimation();
}

void FrameEditorWidget::zoomIn()
{
    setZoom(m_zoom * 2);
}

void FrameEditorWidget::zoomOut()
{
    setZoom(m_zoom / 2);
}

// The selected cell

void FrameEditorWidget::setSelectedCell(QPoint cell)
{
    const QPoint before = m_selected;
    m_selected = contains(cell) ? cell : NoCell;
    update();
    m_cells->tellCurrent();
    if (m_selected != NoCell || before != NoCell)
        emit selectedCellChanged(m_selected);
}

std::optional<AnimationFrame::Cell> FrameEditorWidget::selectedCellContent() const
{
    if (m_selected == NoCell || !frame())
        return std::nullopt;
    return frame()->cell(m_selected.y(), m_selected.x());
}

template <typename Value>
void FrameEditorWidget::change(void (AnimationFrame::*setter)(int, int, Value), Value value)
{
    if (m_selected != NoCell && frame())
        (frame()->*setter)(m_selected.y(), m_selected.x(), value);
}

void FrameEditorWidget::setRotated(bool rotated)
{
    change(&AnimationFrame::setRotate, rotated);
}

void FrameEditorWidget::setMirrored(bool mirrored)
{
    change(&AnimationFrame::setMirror, mirrored);
}

void FrameEditorWidget::setFlipped(bool flipped)
{
    change(&AnimationFrame::setFlip, flipped);
}

void FrameEditorWidget::setOffset(int offset)
{
    change(&AnimationFrame::setOffset, offset);
}

void FrameEditorWidget::setIndex(int index)
{
    change(&AnimationFrame::setIndex, index);
}

// Painting

void FrameEditorWidget::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    const AnimationFrame *shown = frame();
    if (!shown) {
        painter.fillRect(event->rect(), Qt::darkGray);
        return;
    }
    painter.fillRect(event->rect(), Qt::black);
    const QRect exposed = event->rect();
    const QPoint first(exposed.left() / cellSize(), exposed.top() / cellSize());
    const QPoint last(exposed.right() / cellSize(), exposed.bottom() / cellSize());
    const QRect cells = QRect(first, last) & QRect(QPoint(), gridSize());
    paintCells(painter, *shown, cells);
    if (m_onionSkin && m_currentFrame > 0) {
        constexpr qreal Faint = 0.35;
        painter.setOpacity(Faint);
        paintCells(painter, *m_animation->frame(m_currentFrame - 1), cells);
        painter.setOpacity(1);
    }
    paintMarks(painter);
}

void FrameEditorWidget::paintCells(QPainter &painter, const AnimationFrame &frame, const QRect &cells) const
{
    for (int row = cells.top(); m_renderer && row <= cells.bottom(); ++row) {
        for (int column = cells.left(); column <= cells.right(); ++column) {
            const QImage picture = m_renderer(frame.cell(row, column));
            if (!picture.isNull())
                painter.drawImage(cellRect({column, row}), picture);
        }
    }
}

void FrameEditorWidget::paintMarks(QPainter &painter) const
{
    painter.setBrush(Qt::NoBrush);
    if (m_dropTarget != NoCell) {
        QColor fill = palette().color(QPalette::Highlight);
        const QRect target = cellRect(m_dropTarget);
        painter.setPen(fill);
        fill.setAlpha(128);
        painter.fillRect(target, fill);
        painter.drawRect(target.adjusted(0, 0, -1, -1));
    }
    if (m_selected != NoCell) {
        const QRect outline = cellRect(m_selected).adjusted(2, 2, -3, -3);
        painter.setPen(Qt::black);
        painter.drawRect(outline);
        painter.setPen(QPen(QColor(127, 127, 127), 3));
        painter.drawRect(outline);
    }
}

// Mouse and keyboard

void FrameEditorWidget::mousePressEvent(QMouseEvent *event)
{
    event->accept(); // the release belongs to this widget
}

void FrameEditorWidget::mouseReleaseEvent(QMouseEvent *event)
{
    const QPoint cell = cellAt(event->position().toPoint());
    if (cell == NoCell)
        return;
    setSelectedCell(cell);
    if ((event->button() | event->buttons()) & Qt::RightButton)
        popUpMenu(event->globalPosition().toPoint());
}

void FrameEditorWidget::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QPoint cell = cellAt(event->position().toPoint());
    if (cell != NoCell && event->button() == Qt::LeftButton)
        emit cellActivated(cell);
}

void FrameEditorWidget::popUpMenu(QPoint globalPosition)
{
    const auto cell = selectedCellContent();
    if (!cell)
        return;
    m_rotated->setChecked(cell->rotate);
    m_flipped->setChecked(cell->flip);
    m_mirrored->setChecked(cell->mirror);
    m_menu->popup(globalPosition);
}

void FrameEditorWidget::contextMenuEvent(QContextMenuEvent *event)
{
    // that of the mouse comes with the release
    if (event->reason() == QContextMenuEvent::Keyboard && m_selected != NoCell)
        popUpMenu(mapToGlobal(cellRect(m_selected).center()));
}

void FrameEditorWidget::wheelEvent(QWheelEvent *event)
{
    if (event->modifiers() != Qt::ControlModifier) {
        QWidget::wheelEvent(event);
        return;
    }
    if (event->angleDelta().y() > 0)
        zoomIn();
    else if (event->angleDelta().y() < 0)
        zoomOut();
    event->accept();
}

void FrameEditorWidget::keyPressEvent(QKeyEvent *event)
{
    QPoint step;
    switch (event->key()) {
    case Qt::Key_Left:
        step = {-1, 0};
        break;
    case Qt::Key_Right:
        step = {1, 0};
        break;
    case Qt::Key_Up:
        step = {0, -1};
        break;
    case Qt::Key_Down:
        step = {0, 1};
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (m_selected != NoCell)
            emit cellActivated(m_selected);
        return;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    const QPoint target = m_selected == NoCell ? QPoint(0, 0) : m_selected + step;
    if (!contains(target))
        return;
    setSelectedCell(target);
    reveal(this, cellRect(target));
}

bool FrameEditorWidget::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    const QPoint at = cellAt(help->pos());
    if (at == NoCell || !frame()) {
        QToolTip::hideText();
        event->ignore();
        return true;
    }
    const AnimationFrame::Cell cell = frame()->cell(at.y(), at.x());
    QToolTip::showText(help->globalPos(),
                       tr("Index:\t%1\nOffset:\t%2\nFlip\t%3\nMirror:\t%4\nRotate:\t%5")
                           .arg(cell.index)
                           .arg(cell.offset)
                           .arg(yesOrNo(cell.flip), yesOrNo(cell.mirror), yesOrNo(cell.rotate)),
                       this, cellRect(at));
    return true;
}

// Drag and drop

bool FrameEditorWidget::accepts(const QMimeData *mimeData) const
{
    const bool takesSprites = m_animation && m_animation->kind() == Animation::Sprites;
    return mimeData->hasFormat(takesSprites ? SpriteDrag::mimeType() : TileDrag::mimeType());
}

void FrameEditorWidget::setDropTarget(QPoint cell)
{
    m_dropTarget = cell;
    update();
}

void FrameEditorWidget::dragEnterEvent(QDragEnterEvent *event)
{
    if (accepts(event->mimeData()))
        event->acceptProposedAction();
}

void FrameEditorWidget::dragMoveEvent(QDragMoveEvent *event)
{
    setDropTarget(accepts(event->mimeData()) ? cellAt(event->position().toPoint()) : NoCell);
    if (m_dropTarget == NoCell)
        event->ignore();
    else
        event->acceptProposedAction();
}

void FrameEditorWidget::dragLeaveEvent(QDragLeaveEvent *)
{
    setDropTarget(NoCell);
}

void FrameEditorWidget::dropEvent(QDropEvent *event)
{
    setDropTarget(NoCell);
    const QPoint cell = cellAt(event->position().toPoint());
    if (cell == NoCell || !accepts(event->mimeData()) || !place(event->mimeData(), cell))
        return;
    event->acceptProposedAction();
    setSelectedCell(cell);
}

bool FrameEditorWidget::place(const QMimeData *mimeData, QPoint cell)
{
    const auto fits = [this](int index) { return index >= 0 && index < m_indexCount; };
    AnimationFrame *target = frame();
    if (!target)
        return false;
    if (m_animation->kind() == Animation::Sprites) {
        const auto sprite = SpriteDrag::fromMimeData(mimeData);
        if (!sprite || !fits(sprite->index))
            return false;
        target->setIndex(cell.y(), cell.x(), sprite->index);
        return true;
    }
    const auto tile = TileDrag::fromMimeData(mimeData);
    if (!tile || !fits(tile->index) || tile->offset < 0 || tile->offset > LastOffset)
        return false;
    target->setIndex(cell.y(), cell.x(), tile->index);
    target->setOffset(cell.y(), cell.x(), tile->offset);
    return true;
}

} // namespace AnimationEditor
