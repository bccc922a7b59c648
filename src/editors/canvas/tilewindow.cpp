#include "editors/canvas/tilewindow.h"

#include "editors/canvas/canvas.h"
#include "editors/canvas/scrollcanvas.h"
#include "editors/canvas/tileattributeseditor.h"
#include "editors/palette/colourselector.h"
#include "editors/palette/paletteeditor.h"
#include "model/map.h"
#include "model/mapobjects.h"
#include "model/project.h"
#include "ui/expandablesection.h"
#include "ui/numberstepper.h"
#include "ui/toolpalette.h"
#include "undo/numbering.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QSpinBox>

#include <algorithm>

using namespace Quenmora::Ui;

namespace {

constexpr QSize TileSize(8, 8);
constexpr int BankCount = 16;
constexpr int BankSize = 16;

/// The pixel value that the maps of a tile set do not draw: that of the first one which has such a value; -1 for none.
int clearPixelOf(const TileSet &tileSet)
{
    const auto *project = qobject_cast<Project *>(tileSet.parent());
    const QList<QPointer<Map>> maps = project ? project->maps() : QList<QPointer<Map>>();
    for (const QPointer<Map> &map : maps) {
        if (map->tileSetId() == tileSet.id() && map->tileTransparencyIndex() >= 0)
            return map->tileTransparencyIndex() % BankSize;
    }
    return -1;
}

} // namespace

TileWindow::TileWindow(QWidget *parent)
    : DockWidget(tr("Tile Editor"), tr("No tile set selected"), parent)
    , PixelEditor(TileSize, Qt::Horizontal, {RotateCW, RotateCCW})
    , m_number(new NumberStepper)
    , m_offset(new QSpinBox)
    , m_colours(new ColourSelector)
    , m_attributes(new TileAttributesEditor)
    , m_paletteEditor(new PaletteEditor)
{
    setObjectName(QStringLiteral("TileEditor"));
    canvas()->setImageType(Offset16);
    m_number->setItemName(tr("Tile"));
    m_number->showIndex();
    m_offset->setRange(1, BankCount);
    m_offset->setToolTip(tr("The group of 16 colours that the tile is drawn with"));

    auto *scroller = new QScrollArea;
    scroller->setFocusPolicy(Qt::NoFocus); // what is in it has the keyboard
    scroller->setFrameShape(QFrame::NoFrame);
    scroller->setWidgetResizable(true);
    scroller->setWidget(buildPage());
    setContent(scroller);
    connectParts();
    addPreviews();
    addMenuEntry(QStringLiteral("replaceColourInAllTiles"), QStringLiteral(":/ReplaceColour"),
                 tr("Replace Colour in All Tiles"), tr("Does that in all tiles of this palette offset"),
                 [this] { replaceColourInAllTiles(); });
    sayNextStep(
        tr("Draw the first tile here: the left button paints with the foreground colour, the right one with the "
           "background colour"),
        [this] {
            for (int index = 0; m_tileSet && index < m_tileSet->count(); ++index) {
                if (!isBlank(m_tileSet->image(index)))
                    return false;
            }
            return m_tileSet && m_tileSet->count() > 0;
        });
    setTileSet(nullptr);
}

QWidget *TileWindow::buildPage()
{
    canvas()->setMinimumHeight(BankSize * TileSize.height());
    auto *form = new QFormLayout;
    form->setRowWrapPolicy(QFormLayout::WrapLongRows); // as languages need it in a narrow dock
    form->addRow(tr("Tile"), m_number);
    form->addRow(tr("Palette offset"), m_offset);
    auto *attributes = new ExpandableSection(tr("Attributes"));
    attributes->setContent(m_attributes);
    auto *palette = new ExpandableSection(tr("Palette Editor"));
    palette->setContent(m_paletteEditor);

    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    layout->addLayout(toolRows());
    layout->addWidget(new ScrollCanvas(canvas()), 1);
    layout->addWidget(m_colours);
    layout->addLayout(form);
    layout->addWidget(attributes);
    layout->addWidget(palette);
    return page;
}

void TileWindow::connectParts()
{
    connect(tools(), &ToolPalette::actionActivated, canvas(), &Canvas::setMode);
    connect(canvas(), &Canvas::imageChanged, this, &TileWindow::imageChanged);
    connect(canvas(), &Canvas::edited, this, &TileWindow::pushEdit);
    connect(canvas(), &Canvas::foregroundPicked, m_colours, &ColourSelector::setForeIndex);
    connect(canvas(), &Canvas::backgroundPicked, m_colours, &ColourSelector::setBackIndex);
    connect(m_number, &NumberStepper::valueChanged, this, [this] {
        loadTile();
        emit tileIndexChanged(tileIndex());
    });
    connect(m_offset, &QSpinBox::valueChanged, this, &TileWindow::paletteOffsetChanged);
    connect(m_colours, &ColourSelector::foreColourChanged, this, &TileWindow::foreColourChanged);
    connect(m_colours, &ColourSelector::backColourChanged, this, &TileWindow::backColourChanged);
    connect(m_colours, &ColourSelector::doubleClicked, m_paletteEditor, &PaletteEditor::setSelectedIndex);
    connectCanvas(content());
}

// ---- What is shown --------------------------------------------------------------------------

int TileWindow::tileIndex() const
{
    return m_tileSet ? m_number->value() - 1 : -1;
}

void TileWindow::setTileSet(const QPointer<TileSet> &tileSet)
{
    showStroke({});
    if (m_tileSet)
        m_tileSet->disconnect(this);
    m_tileSet = tileSet;
    canvas()->setEnabled(tileSet);
    setActive(tileSet);
    setWindowTitle(tileSet ? tileSet->name() : tr("Tile Editor"));
    if (m_tileSet) {
        canvas()->setTallPixels(m_tileSet->hiRes());
        setPalette(m_tileSet->palette());
        connect(m_tileSet, &TileSet::nameChanged, this, &QWidget::setWindowTitle);
        connect(m_tileSet, &TileSet::tileChanged, this, [this](int index) {
            if (index == tileIndex() && !m_writing)
                loadTile();
        });
        connect(m_tileSet, &TileSet::tileSwapped, this, &TileWindow::loadTile);
        connect(m_tileSet, &TileSet::tileInserted, this, &TileWindow::tileCountChanged);
        connect(m_tileSet, &TileSet::tileDeleted, this, &TileWindow::tileCountChanged);
        connect(m_tileSet, &TileSet::restored, this, [this] { tileCountChanged(tileIndex()); });
        connect(m_tileSet, &QObject::destroyed, this, [this] { setTileSet(nullptr); });
    }
    tileCountChanged(tileIndex());
    emit activeStateChanged(m_tileSet);
}

void TileWindow::tileCountChanged(int)
{
    const QSignalBlocker blocker(m_number);
    m_number->setRange(1, m_tileSet ? std::max(m_tileSet->count(), 1) : 1);
    loadTile();
}

void TileWindow::setTileIndex(int index)
{
    if (index == m_number->value())
        loadTile();
    else
        m_number->setValue(index);
}

void TileWindow::setPalette(const QPointer<Palette> &palette)
{
    const bool swapped = m_tileSet && m_tileSet->palette() != palette;
    if (swapped)
        m_tileSet->setPalette(palette);
    canvas()->bindPalette(palette);
    m_colours->setPalette(palette);
    m_paletteEditor->setPalette(palette);
    if (swapped) {
        const QScopedValueRollback writing(m_writing, true); // what the canvas holds is no other picture
        m_tileSet->notifyImageChanged(tileIndex()); // but whatever shows tiles draws them in other colours
    }
}

void TileWindow::loadTile()
{
    const Tile *tile = m_tileSet ? m_tileSet->tile(tileIndex()) : nullptr;
    m_attributes->setTile(m_tileSet, tileIndex());
    if (!tile)
        return;
    load(tile->image());
    showBank(std::clamp(tile->offset(), 0, BankCount - 1) + 1); // a file may hold any offset
}

void TileWindow::showBank(int bank)
{
    {
        const QSignalBlocker blocker(m_offset);
        m_offset->setValue(bank);
    }
    const int base = (bank - 1) * BankSize;
    canvas()->setInk(base + canvas()->ink() % BankSize);
    canvas()->setPaper(base + canvas()->paper() % BankSize);
    canvas()->setPictureColours(base, BankSize);
    m_colours->setOffset(bank);
    showClearColour();
    m_colours->setForeIndex(canvas()->ink());
    m_colours->setBackIndex(canvas()->paper());
}

/// What is not drawn is a setting of the maps, which keep quiet about it: it is looked at when it may be seen next.
void TileWindow::showClearColour()
{
    const int pixel = m_tileSet ? clearPixelOf(*m_tileSet) : -1;
    m_colours->setClearIndex(pixel < 0 ? -1 : (m_offset->value() - 1) * BankSize + pixel);
}

// ---- Previews -------------------------------------------------------------------------------

void TileWindow::addPreviews()
{
    offerPreviews(this,
                  {{tr("Repeated"), [this](int) { return repeated(); }},
                   {tr("On the Map"), [this](int) { return onTheMap(); }},
                   {tr("Animation"), [this](int frame) { return inMotion(frame); }}});
}

PreviewWindow::Picture TileWindow::repeated() const
{
    const QImage picture = Previews::seamless(canvas()->shownImage());
    const bool tall = m_tileSet && m_tileSet->hiRes() && !picture.isNull();
    return {tall ? picture.scaled(picture.width(), picture.height() * 2) : picture, 0, {}};
}

PreviewWindow::Picture TileWindow::onTheMap()
{
    constexpr int Neighbours = 3;
    const Map *map = m_mapInFront && m_tileSet ? m_mapInFront() : nullptr;
    if (!map || map->tileSet() != m_tileSet)
        return {{}, 0, tr("No map of this tile set is in front")};
    const auto place = m_place.find(*map, tileIndex());
    if (!place)
        return {{}, 0, tr("The map in front does not show this tile")};
    return {Previews::surroundings(*map, *place, Neighbours), 0, {}};
}

PreviewWindow::Picture TileWindow::inMotion(int frame) const
{
    QList<Animation *> animations;
    for (const QPointer<MapObjects> &blocks :
         m_tileSet ? m_tileSet->blockSets() : QHash<QUuid, QPointer<MapObjects>>()) {
        for (const QPointer<TileAnimation> &animation :
             blocks ? blocks->animations() : QList<QPointer<TileAnimation>>())
            animations.append(animation);
    }
    const Animation *animation = Previews::animationShowing(animations, tileIndex());
    if (!animation)
        return {{}, 0, tr("No animation shows this tile")};
    const auto picture = [this](const AnimationFrame::Cell &cell) {
        return m_tileSet->shownTileImage(cell.index, cell.rotate, cell.flip, cell.mirror, cell.offset);
    };
    return {Previews::frame(*animation, frame, picture), Previews::interval(*animation), {}};
}

// ---- Edits ----------------------------------------------------------------------------------

void TileWindow::writeTile(const QPointer<TileSet> &tileSet, int index, const QImage &image)
{
    if (!tileSet || !tileSet->tile(index))
        return;
    const QScopedValueRollback writing(m_writing, tileSet == m_tileSet && index == tileIndex());
    tileSet->setTileImage(index, image);
    tileSet->notifyImageChanged(index);
}

void TileWindow::showStroke(const QImage &pixels)
{
    const QScopedValueRollback writing(m_writing, true);
    if (m_strokeSet && (pixels.isNull() || m_strokeSet != m_tileSet))
        m_strokeSet->showPainted(-1, {});
    m_strokeSet = pixels.isNull() ? nullptr : m_tileSet;
    if (m_strokeSet)
        m_strokeSet->showPainted(tileIndex(), pixels);
}

void TileWindow::imageChanged()
{
    showStroke({});
    if (!isLoading())
        writeTile(m_tileSet, tileIndex(), canvas()->image());
}

void TileWindow::paletteOffsetChanged(int offset)
{
    if (!m_tileSet)
        return;
    m_tileSet->setTileOffset(tileIndex(), offset - 1);
    canvas()->remap(offset);
    showBank(offset);
    writeTile(m_tileSet, tileIndex(), canvas()->image());
}

void TileWindow::replaceColourInAllTiles()
{
    const Tile *shown = m_tileSet ? m_tileSet->tile(tileIndex()) : nullptr;
    if (!shown)
        return;
    emit m_tileSet->structureAboutToChange();
    for (int index = 0; index < m_tileSet->count(); ++index) {
        const QImage before = m_tileSet->image(index);
        const QImage after = withColourReplaced(before);
        if (m_tileSet->tileOffset(index) != shown->offset() || Layer2Image::haveSameIndices(before, after))
            continue;
        m_tileSet->setTileImage(index, after);
        m_tileSet->notifyImageChanged(index);
    }
    emit m_tileSet->structureChanged(tr("Replace Colour"));
}

void TileWindow::foreColourChanged(int index)
{
    canvas()->setInk(index);
    m_paletteEditor->setSelectedIndex(index);
}

void TileWindow::backColourChanged(int index)
{
    canvas()->setPaper(index);
}

void TileWindow::pushEdit(const QString &text, const QImage &before, const QImage &after, PixelEditCommand::Kind kind)
{
    if (!m_tileSet || !m_stackFor)
        return;
    const int name = Numbering::of(*m_tileSet).nameAt(tileIndex()); // the tile may have another number later
    const auto apply = [window = QPointer(this), tileSet = m_tileSet, name](const QImage &image) {
        if (window && tileSet)
            window->applyEdit(tileSet, Numbering::of(*tileSet).numberOf(name), image);
    };
    push(m_stackFor(m_tileSet->id()), text, before, after, apply, mergeKey(m_tileSet->id(), name), kind);
}

void TileWindow::applyEdit(const QPointer<TileSet> &tileSet, int index, const QImage &image)
{
    if (tileSet && tileSet == m_tileSet && index == tileIndex())
        canvas()->setImage(image);
    else
        writeTile(tileSet, index, image);
}

// ---- Keys -------------------------------------------------------------------------------------

bool TileWindow::event(QEvent *event)
{
    if (event->type() == QEvent::Enter)
        showClearColour();
    scrollByShortcutOverride(event);
    return DockWidget::event(event);
}
