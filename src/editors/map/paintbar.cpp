#include "editors/map/paintbar.h"

#include "model/palette.h"
#include "ui/commands.h"
#include "ui/svgiconengine.h"
#include "ui/toolbarkeys.h"

#include <QComboBox>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTimer>
#include <QToolButton>

#include <algorithm>
#include <ranges>
#include <utility>

namespace MapEditor {

namespace {

constexpr int PictureExtent = 24;
constexpr int MostCellsShown = 64; ///< along a side

/// What the picture of a stamp shows; null without tiles and colours to show it with.
QImage indicesOf(const Stamp &stamp, TileSet *tileSet)
{
    if (!tileSet || !tileSet->palette() || stamp.isEmpty())
        return {};
    const QSize shown = stamp.size().boundedTo({MostCellsShown, MostCellsShown});
    TileMap cells(shown);
    cells.setTileSet(tileSet);
    cells.restore(stamp.rows());
    return cells.render(QRect(QPoint(0, 0), shown), 1, -1);
}

/// The entries of the palette that a picture shows.
std::bitset<Palette::Size> entriesOf(const QImage &indices)
{
    std::bitset<Palette::Size> entries;
    for (int y = 0; y < indices.height(); ++y) {
        const uchar *line = indices.constScanLine(y);
        for (int x = 0; x < indices.width(); ++x)
            entries.set(line[x]);
    }
    return entries;
}

} // namespace

PaintBar::PaintBar(QWidget *parent)
    : QToolBar(tr("Painting"), parent)
    , m_offset(new QSpinBox)
    , m_terrains(new QComboBox)
    , m_hint(nullptr)
    , m_soon(new QTimer(this))
{
    m_soon->setSingleShot(true); // a button may be in the middle of its click, and tiles change one by one
    connect(m_soon, &QTimer::timeout, this, &PaintBar::showStamps);
    setObjectName(QStringLiteral("PaintBar"));
    setIconSize({PictureExtent, PictureExtent});
    setMovable(false);
    addOffsetBox();
    addTerrainBox();
    addSeparator();
    auto *stamps = new QLabel(tr("Stamps"));
    stamps->setMargin(4);
    addWidget(stamps);
    auto *hint = new QLabel(tr("Ctrl-drag tiles to make one"));
    hint->setEnabled(false);
    hint->setToolTip(tr("Stamps are made of tiles, by dragging with Ctrl in the tile picker, and of cells, by dragging "
                        "with the Pick tool"));
    hint->setMargin(4);
    m_hint = addWidget(hint);
    letKeysReach(this);
}

void PaintBar::addOffsetBox()
{
    auto *label = new QLabel(tr("Offset"));
    label->setMargin(4);
    addWidget(label);
    m_offset->setRange(-1, 15);
    m_offset->setValue(-1);
    m_offset->setSpecialValueText(tr("Of the tile"));
    m_offset->setAccessibleName(tr("Palette offset"));
    m_offset->setToolTip(tr("The palette offset of painted cells. Ctrl with a painting tool paints it alone, and with "
                            "the right button brings back that of the tile"));
    addWidget(m_offset);
    m_offset->installEventFilter(this);
    connect(m_offset, &QSpinBox::valueChanged, this, &PaintBar::paletteOffsetChanged);
}

void PaintBar::addTerrainBox()
{
    addSeparator();
    auto *label = new QLabel(tr("Terrain"));
    label->setMargin(4);
    addWidget(label);
    m_terrains->setAccessibleName(tr("Terrain"));
    m_terrains->setToolTip(tr("What the terrain tool paints"));
    m_terrains->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_terrains->setPlaceholderText(tr("None"));
    addWidget(m_terrains);
    connect(m_terrains, &QComboBox::activated, this, &PaintBar::finished);
    connect(m_terrains, &QComboBox::currentIndexChanged, this, [this] { emit terrainChanged(terrain()); });
    QAction *edit = addAction(themedIcon(QStringLiteral(":/Rename")), tr("Edit Terrains…"));
    edit->setToolTip(tr("Marks the tiles of terrains"));
    Commands::addPointed(edit, QStringLiteral("paintBar.editTerrains")); // the Map menu has the command
    connect(edit, &QAction::triggered, this, &PaintBar::terrainsRequested);
    if (auto *button = qobject_cast<QToolButton *>(widgetForAction(edit)))
        button->setIconSize({16, 16});
}

bool PaintBar::eventFilter(QObject *, QEvent *event)
{
    const int key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent *>(event)->key() : 0;
    if (key != Qt::Key_Return && key != Qt::Key_Enter)
        return false;
    m_offset->interpretText();
    emit finished();
    return true;
}

void PaintBar::setKit(const QPointer<PaintKit> &kit)
{
    if (m_kit) {
        m_kit->disconnect(this);
        m_kit->disconnect(m_soon);
        if (m_kit->tileSet()) {
            m_kit->tileSet()->disconnect(m_soon);
            m_kit->tileSet()->disconnect(this);
        }
    }
    m_kit = kit;
    m_colours.clear();
    if (kit) {
        connect(kit, &PaintKit::stampsChanged, m_soon, qOverload<>(&QTimer::start));
        connect(kit, &PaintKit::terrainsChanged, this, &PaintBar::showTerrains);
        if (TileSet *tileSet = kit->tileSet()) {
            connect(tileSet, &TileSet::tileChanged, m_soon, [this] { m_soon->start(); });
            connect(tileSet, &TileSet::shownColoursChanged, this, &PaintBar::showColours);
        }
    }
    showStamps();
    showTerrains();
}

bool PaintBar::isShowingSoon() const
{
    return m_soon->isActive();
}

Terrain PaintBar::terrain() const
{
    return m_kit ? m_kit->terrains().value(m_terrains->currentIndex()) : Terrain();
}

void PaintBar::showTerrains()
{
    const int before = m_terrains->currentIndex();
    {
        const QSignalBlocker silent(m_terrains);
        m_terrains->clear();
        if (m_kit) {
            for (const Terrain &terrain : m_kit->terrains())
                m_terrains->addItem(terrain.name);
        }
        m_terrains->setCurrentIndex(std::clamp(before, std::min(0, m_terrains->count() - 1), m_terrains->count() - 1));
        m_terrains->setEnabled(m_terrains->count() > 0);
    }
    emit terrainChanged(terrain());
}

QPixmap PaintBar::pictureOf(const Stamp &stamp, TileSet *tileSet, int extent, qreal ratio)
{
    QPixmap pixmap(QSize(extent, extent) * ratio);
    pixmap.fill(Qt::transparent);
    const QImage image = indicesOf(stamp, tileSet);
    if (image.isNull())
        return pixmap;
    const QImage fitted =
        tileSet->palette()
            ->shown(image)
            .convertToFormat(QImage::Format_RGB32)
            .scaled(pixmap.size(), Qt::KeepAspectRatio,
                    image.width() < pixmap.width() ? Qt::FastTransformation : Qt::SmoothTransformation);
    QPainter painter(&pixmap);
    painter.drawImage((pixmap.width() - fitted.width()) / 2, (pixmap.height() - fitted.height()) / 2, fitted);
    painter.end();
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

void PaintBar::showStamps()
{
    qDeleteAll(m_stamps);
    m_stamps.clear();
    m_entries.clear();
    const QList<PaintKit::KeptStamp> stamps = m_kit ? m_kit->stamps() : QList<PaintKit::KeptStamp>();
    m_hint->setVisible(stamps.isEmpty());
    for (int i = 0; i < stamps.size(); ++i) {
        const PaintKit::KeptStamp &kept = stamps.at(i);
        const QSize size = kept.stamp.size();
        const QString measure = tr("%1 × %2 cells").arg(size.width()).arg(size.height());
        QAction *action = addAction(pictureOf(kept.stamp, m_kit->tileSet(), PictureExtent, devicePixelRatioF()),
                                    kept.name.isEmpty() ? measure : kept.name);
        action->setToolTip(kept.name.isEmpty() ? tr("Stamp of %1").arg(measure)
                                               : tr("%1, a stamp of %2").arg(kept.name, measure));
        connect(action, &QAction::triggered, this, [this, stamp = kept.stamp] {
            emit stampChosen(stamp);
            emit finished();
        });
        if (QWidget *button = widgetForAction(action)) {
            button->setContextMenuPolicy(Qt::CustomContextMenu);
            connect(button, &QWidget::customContextMenuRequested, this,
                    [this, button, i](QPoint point) { showMenu(i, button->mapToGlobal(point)); });
        }
        m_stamps.append(action);
        m_entries.append(entriesOf(indicesOf(kept.stamp, m_kit->tileSet())));
    }
    letKeysReach(this); // stamps are in no menu
}

void PaintBar::showColours()
{
    if (!isVisible() || isShowingSoon() || !m_kit || !m_kit->tileSet() || !m_kit->tileSet()->palette())
        return;
    const QList<QRgb> colours = m_kit->tileSet()->palette()->shownColourTable();
    const QList<QRgb> before = std::exchange(m_colours, colours);
    const QList<PaintKit::KeptStamp> stamps = m_kit->stamps();
    for (qsizetype i = 0; i < std::min(stamps.size(), m_stamps.size()); ++i) {
        const auto changes = [&, entries = m_entries.at(i)](int entry) {
            return entries.test(size_t(entry)) && colours.value(entry) != before.value(entry);
        };
        if (std::ranges::any_of(std::views::iota(0, int(Palette::Size)), changes))
            m_stamps.at(i)->setIcon(
                pictureOf(stamps.at(i).stamp, m_kit->tileSet(), PictureExtent, devicePixelRatioF()));
    }
}

void PaintBar::showMenu(int index, QPoint globalPosition)
{
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(menu->addAction(themedIcon(QStringLiteral(":/Tag")), tr("Name Stamp…")), &QAction::triggered, this,
            [this, index] { askForName(index); });
    connect(menu->addAction(themedIcon(QStringLiteral(":/Trashcan")), tr("Forget Stamp")), &QAction::triggered, this,
            [this, index] {
                if (m_kit)
                    m_kit->removeStamp(index);
            });
    menu->popup(globalPosition);
}

void PaintBar::askForName(int index)
{
    if (!m_kit)
        return;
    auto *dialog = new QInputDialog(this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(tr("Name Stamp"));
    dialog->setLabelText(tr("A stamp with a name stays; without one it goes when others are used"));
    dialog->setTextValue(m_kit->stamps().value(index).name);
    const Stamp named = m_kit->stamps().value(index).stamp;
    connect(dialog, &QInputDialog::textValueSelected, this, [this, named](const QString &name) {
        const auto &stamps = m_kit ? m_kit->stamps() : QList<PaintKit::KeptStamp>();
        const auto place = std::ranges::find(stamps, named, &PaintKit::KeptStamp::stamp);
        if (place != stamps.end())
            m_kit->nameStamp(int(place - stamps.begin()), name.trimmed());
    });
    dialog->open();
}

} // namespace MapEditor
