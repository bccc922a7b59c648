#include "editors/canvas/tilepickergrid.h"

#include "model/palette.h"
#include "ui/commands.h"
#include "ui/gridkeys.h"
#include "ui/reveal.h"

#include <QMenu>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace {

constexpr std::array Factors{1, 2, 4, 8, 16};
/// The tilemap reaches tiles 0 to 511; tiles behind the one after them are shaded.
constexpr int LastUnshaded = 512;

} // namespace

TilePickerGrid::TilePickerGrid(QWidget *parent)
    : CellGrid(TileDrag::mimeType(), QString(), parent)
    , m_factors(new QActionGroup(this))
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(tr("Tiles"));
    buildMenu();
}

void TilePickerGrid::buildMenu()
{
    const auto addZoom = [this](const char *name, const QString &text, int step) {
        QAction *action =
            contextMenu()->addAction(text, this, [this, step] { setMagnification(m_magnification + step); });
        action->setShortcutContext(Qt::WidgetShortcut);
        addAction(Commands::add(action, QLatin1String(name)));
    };
    addZoom("tilePicker.zoomIn", tr("Zoom In"), 1);
    addZoom("tilePicker.zoomOut", tr("Zoom Out"), -1);
    buildFactors();
    contextMenu()->addSeparator();
    addTileAction("tilePicker.clear", tr("Clear"), &TilePickerGrid::clearTile);
    addTileAction("tilePicker.copyImage", tr("Copy Image"), &TilePickerGrid::copyTileImage);
    addTileAction("tilePicker.pasteImage", tr("Paste Image"), &TilePickerGrid::pasteTileImage);
    addTileAction("tilePicker.insert", tr("Insert"), &TilePickerGrid::insertTile);
    addTileAction("tilePicker.delete", tr("Delete"), &TilePickerGrid::deleteTile);
}

void TilePickerGrid::buildFactors()
{
    m_factors->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
    for (const int factor : Factors) {
        QAction *action = contextMenu()->addAction(tr("%1x").arg(factor));
        action->setCheckable(true);
        action->setData(factor);
        action->setChecked(factor == m_magnification);
        m_factors->addAction(action);
        Commands::add(action, QStringLiteral("tilePicker.magnification%1").arg(factor));
        connect(action, &QAction::triggered, this, [this, action, factor] {
            setMagnification(factor);
            action->setChecked(true); // choosing the factor in force must not clear its mark
        });
    }
}

void TilePickerGrid::addTileAction(const char *name, const QString &text, void (TilePickerGrid::*edit)())
{
    QAction *action = contextMenu()->addAction(text, this, [this, edit] {
        if (m_tileSet && m_menuTile >= 0 && m_menuTile < m_tileSet->count())
            (this->*edit)();
    });
    Commands::addPointed(action, QLatin1String(name));
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
    m_menuTile = m_copySource = -1;
    m_markedFrom.reset();
    if (m_tileSet) {
        connect(m_tileSet, &TileSet::tileChanged, this, qOverload<>(&QWidget::update));
        connect(m_tileSet, &TileSet::shownColoursChanged, this, qOverload<>(&QWidget::update));
        connect(m_tileSet, &TileSet::tileSwapped, this, qOverload<>(&QWidget::update));
        connect(m_tileSet, &TileSet::tileInserted, this, &TilePickerGrid::refresh);
        connect(m_tileSet, &TileSet::tileDeleted, this, &TilePickerGrid::refresh);
        connect(m_tileSet, &TileSet::restored, this, &TilePickerGrid::refresh);
        connect(m_tileSet, &QObject::destroyed, this, [this] { setTileSet(nullptr); });
    }
    reset(-1);
}

void TilePickerGrid::setMagnification(int magnification)
{
    const int clamped = std::clamp(magnification, MinimumMagnification, MaximumMagnification);
    if (clamped == m_magnification)
        return;
    m_magnification = clamped;
    for (QAction *action : m_factors->actions())
        action->setChecked(action->data().toInt() == clamped);
    refresh();
    emit magnificationChanged(clamped);
}

// ---- Layout ---------------------------------------------------------------------------------

int TilePickerGrid::heightForWidth(int width) const
{
    return m_tileSet ? rowsHeight(width) : 16 * m_magnification;
}

QSize TilePickerGrid::sizeHint() const
{
    const int width = 16 * cell();
    return {width, heightForWidth(width)};
}

// ---- Painting -------------------------------------------------------------------------------

void TilePickerGrid::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.fillRect(event->rect(), Qt::black);
    if (!m_tileSet)
        return;
    const auto [first, last] = cellsIn(event->rect());
    // A tile may still have the colours of a palette that was bound before.
    const QPointer<Palette> palette = m_tileSet->palette();
    const QList<QRgb> colours = palette ? palette->shownColourTable() : QList<QRgb>();
    for (int index = first; index < last; ++index) {
        QImage image = m_tileSet->image(index);
        if (palette)
            image.setColorTable(colours);
        // scaled here: a painter that scales looks every pixel of the screen up in the colour table
        const QRect frame = cellRect(index).adjusted(0, 0, -1, -1);
        image = image.convertToFormat(QImage::Format_RGB32).scaled(frame.size() * devicePixelRatioF());
        image.setDevicePixelRatio(devicePixelRatioF());
        painter.drawImage(frame.topLeft(), image);
    }
    paintMarks(painter);
    for (int index = std::max(first, LastUnshaded + 1); index < last; ++index)
        painter.fillRect(cellRect(index), QColor(0, 0, 0, 64));
}

void TilePickerGrid::paintMarks(QPainter &painter) const
{
    painter.setBrush(Qt::NoBrush);
    const auto frameOf = [this](int index) { return cellRect(index).adjusted(0, 0, -1, -1); };
    if (dropTarget() >= 0) {
        painter.setPen(Qt::black);
        painter.drawRect(frameOf(dropTarget()));
    } else if (hoveredIndex() >= 0) {
        paintHovered(painter, frameOf(hoveredIndex()));
    }
    if (m_markedFrom)
        paintDotted(painter, markedRect().adjusted(0, 0, -2, -2), 2);
    else if (selectedIndex() >= 0)
        paintDotted(painter, frameOf(selectedIndex()).adjusted(0, 0, -1, -1), 2);
}

// ---- Mouse and keyboard ---------------------------------------------------------------------

QString TilePickerGrid::toolTipOf(int index) const
{
    return tr("Index: %1\nPalette Offset: %2").arg(index).arg(m_tileSet->tileOffset(index));
}

QString TilePickerGrid::textOf(int index) const
{
    return tr("Tile %1, palette offset %2").arg(index).arg(m_tileSet->tileOffset(index));
}

void TilePickerGrid::choose(int index)
{
    if (index < 0 || index == selectedIndex())
        return;
    select(index);
    emit selectedIndexChanged(index);
}

void TilePickerGrid::openMenu(int index, QPoint globalPosition)
{
    m_menuTile = index;
    contextMenu()->popup(globalPosition);
}

QPoint TilePickerGrid::placeAt(QPoint point) const
{
    const int rows = std::max(1, (count() + columns(width()) - 1) / columns(width()));
    return {std::clamp(point.x() / cell(), 0, columns(width()) - 1), std::clamp(point.y() / cell(), 0, rows - 1)};
}

QRect TilePickerGrid::markedRect() const
{
    const QRect places(
        QPoint(std::min(m_markedFrom->x(), m_markedTo.x()), std::min(m_markedFrom->y(), m_markedTo.y())),
        QPoint(std::max(m_markedFrom->x(), m_markedTo.x()), std::max(m_markedFrom->y(), m_markedTo.y())));
    return {places.topLeft() * cell(), places.size() * cell()};
}

void TilePickerGrid::mousePressEvent(QMouseEvent *event)
{
    const QPoint point = event->position().toPoint();
    m_markedFrom.reset();
    m_markedByKeys = false;
    if (event->button() != Qt::LeftButton || event->modifiers() != Qt::ControlModifier || indexAt(point) < 0) {
        CellGrid::mousePressEvent(event);
        return;
    }
    m_markedFrom = m_markedTo = placeAt(point);
    update();
}

void TilePickerGrid::mouseMoveEvent(QMouseEvent *event)
{
    if (!isMarking()) {
        CellGrid::mouseMoveEvent(event);
        return;
    }
    m_markedTo = placeAt(event->position().toPoint());
    update();
}

void TilePickerGrid::mouseReleaseEvent(QMouseEvent *event)
{
    if (!isMarking()) {
        CellGrid::mouseReleaseEvent(event);
        return;
    }
    if (event->button() != Qt::LeftButton)
        return;
    if (m_markedTo == *m_markedFrom) { // a click
        clicked(m_markedTo.y() * columns(width()) + m_markedTo.x());
    } else {
        takeMarked();
    }
    m_markedFrom.reset();
    update();
}

void TilePickerGrid::takeMarked()
{
    const QRect places(markedRect().topLeft() / cell(), markedRect().size() / cell());
    QList<QList<int>> rows;
    for (int y = places.top(); y <= places.bottom(); ++y) {
        QList<int> row;
        for (int x = places.left(); x <= places.right(); ++x) {
            const int index = y * columns(width()) + x;
            row.append(index < count() ? index : -1);
        }
        rows.append(row);
    }
    emit tilesPicked(rows);
}

void TilePickerGrid::markTo(QPoint place)
{
    const QPoint from = cellRect(selectedIndex()).topLeft() / cell();
    if (!m_markedFrom)
        m_markedTo = from;
    m_markedFrom = from;
    m_markedByKeys = true;
    m_markedTo = placeAt((m_markedTo + place) * cell());
    reveal(this, {m_markedTo * cell(), QSize(cell(), cell())});
    takeMarked();
    update();
}

void TilePickerGrid::mouseDoubleClickEvent(QMouseEvent *event)
{
    const int index = indexAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && index >= 0)
        emit itemDoubleClicked(index + 1);
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
    const int step = GridKeys::step(event->key(), 2); // 1 to the sides, 2 up and down
    if (step != 0 && event->modifiers() == Qt::ShiftModifier && selectedIndex() >= 0) {
        markTo(std::abs(step) == 1 ? QPoint(step, 0) : QPoint(0, step / 2));
        return;
    }
    if (m_markedByKeys && event->key() != Qt::Key_Shift) {
        m_markedFrom.reset();
        m_markedByKeys = false;
        update();
    }
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        CellGrid::keyPressEvent(event);
    else if (selectedIndex() >= 0)
        emit itemDoubleClicked(selectedIndex() + 1);
}
