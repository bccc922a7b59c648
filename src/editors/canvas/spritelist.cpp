#include "editors/canvas/spritelist.h"

#include "editors/canvas/canvasclipboard.h"
#include "editors/canvas/cellmarks.h"
#include "editors/canvas/dragdata.h"
#include "ui/gridkeys.h"
#include "ui/svgiconengine.h"

#include <QApplication>
#include <QClipboard>
#include <QDrag>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int Magnification = 3;
constexpr int Cell = Magnification * SpriteBank::SpriteSize;
constexpr QSize SpriteSize(SpriteBank::SpriteSize, SpriteBank::SpriteSize);

/// The picture on the clipboard, a canvas's before any other program's; null when there is none.
QImage clipboardImage()
{
    const QMimeData *mimeData = QGuiApplication::clipboard()->mimeData();
    const QImage ours = CanvasClipboardContent::fromMimeData(mimeData).image;
    if (!ours.isNull())
        return ours;
    return mimeData ? mimeData->imageData().value<QImage>() : QImage();
}

} // namespace

namespace SpriteEditor {

SpriteList::SpriteList(QWidget *parent) : QWidget(parent), m_menu(new QMenu(tr("Sprite"), this))
{
    setMouseTracking(true);
    setAcceptDrops(true);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Sprites"));
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);

    const auto addRequest = [this](const QString &text, void (SpriteList::*request)(int)) {
        m_menu->addAction(text, this, [this, request] {
            if (pressedSprite() >= 0)
                emit(this->*request)(pressedSprite());
        });
    };
    addRequest(tr("Delete"), &SpriteList::deleteRequested);
    addRequest(tr("Clear"), &SpriteList::clearRequested);
    m_menu->addAction(tr("Copy Image"), this, &SpriteList::copyImage);
    m_menu->addAction(tr("Paste Image"), this, &SpriteList::pasteImage);
}

void SpriteList::setSprites(const QPointer<SpriteBank> &sprites)
{
    if (m_sprites)
        m_sprites->disconnect(this);
    m_sprites = sprites;
    m_hovered = m_dropTarget = -1;
    m_pressPoint = {-1, -1};
    m_selected = sprites ? 0 : -1;
    if (m_sprites) {
        connect(m_sprites, &SpriteBank::countChanged, this, &SpriteList::refresh);
        connect(m_sprites, &SpriteBank::imageChanged, this, qOverload<>(&QWidget::update));
        connect(m_sprites, &SpriteBank::coloursChanged, this, qOverload<>(&QWidget::update));
        connect(m_sprites, &SpriteBank::restored, this, &SpriteList::refresh);
        connect(m_sprites, &QObject::destroyed, this, [this] { setSprites(nullptr); });
    }
    refresh();
}

void SpriteList::refresh()
{
    m_selected = std::min(m_selected, count() - 1);
    m_hovered = -1;
    resize(width(), heightForWidth(width()));
    updateGeometry();
    update();
}

void SpriteList::setSelectedIndex(int index)
{
    m_selected = index < count() ? index : -1;
    update();
}

// ---- Layout ---------------------------------------------------------------------------------

int SpriteList::columns(int width) const
{
    return std::max(1, width / Cell);
}

int SpriteList::margin() const
{
    return (width() - columns(width()) * Cell) / 2;
}

int SpriteList::heightForWidth(int width) const
{
    return m_sprites && width >= 1 ? (count() / columns(width) + 1) * Cell : width;
}

QSize SpriteList::sizeHint() const
{
    const int width = std::max(this->width(), 4 * Cell);
    return {width, heightForWidth(width)};
}

int SpriteList::indexAt(QPoint point) const
{
    if (!m_sprites || point.x() < margin() || point.y() < 0)
        return -1;
    const int column = (point.x() - margin()) / Cell;
    if (column >= columns(width()))
        return -1;
    const int index = point.y() / Cell * columns(width()) + column;
    return index <= count() ? index : -1;
}

QRect SpriteList::cellRect(int index) const
{
    const int across = columns(width());
    return {margin() + index % across * Cell, index / across * Cell, Cell, Cell};
}

int SpriteList::spriteAt(QPoint point) const
{
    const int index = indexAt(point);
    return index < count() ? index : -1;
}

// ---- Painting -------------------------------------------------------------------------------

void SpriteList::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    if (!m_sprites) {
        painter.fillRect(rect(), Qt::black);
        return;
    }
    painter.fillRect(event->rect(), palette().base());
    const int across = columns(width());
    const int first = event->rect().top() / Cell * across;
    const int last = std::min((event->rect().bottom() / Cell + 1) * across, count() + 1);
    QImage blank(SpriteSize, QImage::Format_Indexed8);
    blank.setColorTable(m_sprites->image().colorTable());
    blank.fill(0);
    for (int index = first; index < last; ++index) {
        const QImage sprite = index < count() ? m_sprites->spriteImage(index, false, false, false) : blank;
        painter.drawImage(cellRect(index), sprite);
    }
    if (last == count() + 1) {
        // The icon's colour is made for the window's background, not for that of a blank sprite.
        QColor ground = palette().color(QPalette::Base);
        ground.setAlpha(220);
        painter.fillRect(cellRect(count()).adjusted(4, 4, -4, -4), ground);
        themedIcon(QStringLiteral(":/AddDoc")).paint(&painter, cellRect(count()));
    }
    paintMarks(painter);
}

void SpriteList::paintMarks(QPainter &painter) const
{
    painter.setBrush(Qt::NoBrush);
    const auto frameOf = [this](int index) { return cellRect(index).adjusted(0, 0, -1, -1); };
    if (underMouse() && m_hovered >= 0)
        CellMarks::paintHovered(painter, frameOf(m_hovered));
    if (m_selected >= 0)
        CellMarks::paintDotted(painter, frameOf(m_selected), 1);
    if (m_dropTarget >= 0 && m_dropTarget != m_selected)
        CellMarks::paintDotted(painter, frameOf(m_dropTarget), 3);
}

// ---- Mouse and keyboard ---------------------------------------------------------------------

void SpriteList::choose(int index)
{
    m_selected = index;
    update();
    emit indexChanged(index);
}

void SpriteList::mousePressEvent(QMouseEvent *event)
{
    m_buttons = event->buttons();
    m_pressPoint = event->position().toPoint();
}

void SpriteList::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint point = event->position().toPoint();
    const bool dragged =
        (m_buttons & Qt::LeftButton) && (point - m_pressPoint).manhattanLength() >= QApplication::startDragDistance();
    if (dragged && pressedSprite() >= 0) {
        startDrag();
        return;
    }
    const int index = indexAt(point);
    if (index == m_hovered)
        return;
    m_hovered = index;
    update();
}

void SpriteList::mouseReleaseEvent(QMouseEvent *event)
{
    const int index = indexAt(event->position().toPoint());
    const Qt::MouseButtons pressed = std::exchange(m_buttons, Qt::NoButton);
    if (index < 0)
        return;
    if (pressed & Qt::LeftButton) {
        if (index == count())
            emit addSprite();
        else
            choose(index);
    } else if ((pressed & Qt::RightButton) && index < count()) {
        m_menu->popup(event->globalPosition().toPoint());
    }
}

void SpriteList::leaveEvent(QEvent *event)
{
    m_hovered = -1;
    update();
    QWidget::leaveEvent(event);
}

void SpriteList::keyPressEvent(QKeyEvent *event)
{
    const int step = GridKeys::step(event->key(), columns(width()));
    if (step == 0) {
        QWidget::keyPressEvent(event);
        return;
    }
    const int moved = std::max(m_selected, 0) + step;
    if (moved >= 0 && moved < count())
        choose(moved);
}

void SpriteList::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() != QContextMenuEvent::Keyboard || m_selected < 0) {
        event->ignore();
        return;
    }
    m_pressPoint = cellRect(m_selected).center();
    m_menu->popup(mapToGlobal(m_pressPoint));
}

// ---- Clipboard ------------------------------------------------------------------------------

void SpriteList::copyImage()
{
    if (pressedSprite() < 0)
        return;
    const auto type = m_sprites->depth() == Quenmora::EightBit ? Quenmora::Ui::Full256 : Quenmora::Ui::Offset16;
    const CanvasClipboardContent content{0, type, m_sprites->paletteId(),
                                         m_sprites->spriteImage(pressedSprite(), false, false, false)};
    QGuiApplication::clipboard()->setMimeData(content.toMimeData());
}

void SpriteList::pasteImage()
{
    const QImage pasted = clipboardImage();
    if (pressedSprite() < 0 || pasted.isNull() || !m_sprites->palette())
        return;
    // What the picture does not cover is black.
    QImage sprite(SpriteSize, QImage::Format_ARGB32);
    sprite.fill(Qt::black);
    QPainter painter(&sprite);
    painter.drawImage(0, 0, pasted.copy(QRect(QPoint(), SpriteSize) & pasted.rect()));
    painter.end();
    m_sprites->importImage(pressedSprite(), sprite);
    update();
}

// ---- Drag and drop --------------------------------------------------------------------------

void SpriteList::startDrag()
{
    m_buttons = Qt::NoButton;
    const int index = pressedSprite();
    auto *drag = new QDrag(this);
    drag->setMimeData(SpriteDrag{index}.toMimeData());
    drag->setPixmap(QPixmap::fromImage(m_sprites->spriteImage(index, false, false, false).scaled(Cell, Cell)));
    drag->exec(Qt::MoveAction);
}

void SpriteList::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->mimeData()->hasFormat(SpriteDrag::mimeType()))
        event->acceptProposedAction();
}

void SpriteList::dragMoveEvent(QDragMoveEvent *event)
{
    const int target = spriteAt(event->position().toPoint());
    if (target != m_dropTarget) {
        m_dropTarget = target;
        update();
    }
    event->acceptProposedAction();
}

void SpriteList::dragLeaveEvent(QDragLeaveEvent *)
{
    m_dropTarget = -1;
    update();
}

void SpriteList::dropEvent(QDropEvent *event)
{
    if (!event->mimeData()->hasFormat(SpriteDrag::mimeType()))
        return;
    event->acceptProposedAction();
    const int source = pressedSprite();
    const int target = spriteAt(event->position().toPoint());
    m_dropTarget = -1;
    update();
    if (source < 0 || target < 0)
        return;
    if (event->modifiers() == Qt::ShiftModifier)
        emit copySprite(source, target);
    else if (event->modifiers() == Qt::NoModifier)
        emit moveSprite(source, target);
}

} // namespace SpriteEditor
