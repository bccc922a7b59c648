#include "editors/map/mapeditortoolbar.h"

#include "ui/commands.h"
#include "ui/svgiconengine.h"
#include "ui/toolbarkeys.h"

#include <QAction>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>

namespace MapEditor {

ToolBar::ToolBar(QWidget *parent) : QToolBar(tr("Map"), parent)
{
    setObjectName(QStringLiteral("MapToolBar"));

    m_tiles = addLayer(QStringLiteral("tiles"), QStringLiteral(":/LayerTiles"), tr("Tiles"),
                       tr("Show or hide the tile layer"));
    m_objects = addLayer(QStringLiteral("objects"), QStringLiteral(":/LayerObjects"), tr("Objects"),
                         tr("Show or hide the object layer"));
    m_sprites = addLayer(QStringLiteral("sprites"), QStringLiteral(":/LayerSprites"), tr("Sprites"),
                         tr("Show or hide the sprite layer"));
    addSeparator();

    const QString viewportTip = tr("Size in cells of the viewport");
    addLabel(tr("Viewport"));
    m_width = addSpinBox(1, 1000, DefaultViewport.width(), viewportTip, tr("Viewport width"));
    addLabel(tr("×"));
    m_height = addSpinBox(1, 1000, DefaultViewport.height(), viewportTip, tr("Viewport height"));
    addSeparator();

    addLabel(tr("Background"));
    m_background = addSpinBox(-1, 1024, -1, tr("Tile index to be used as a background"), tr("Background"));
    m_background->setSpecialValueText(tr("None"));
    addLabel(tr("Transparency"));
    m_transparency =
        addSpinBox(-1, 15, -1, tr("Sets the transparency index of the tile set (0-15) or off"), tr("Transparency"));
    m_transparency->setSpecialValueText(tr("Off"));
    addSeparator();

    addLabel(tr("Snap"));
    m_snap = addSpinBox(1, 16, 1, tr("Sets the snap to grid size"), tr("Snap"));
    m_snap->setSpecialValueText(tr("Off"));
    addSeparator();

    m_size = new QLabel;
    m_size->setToolTip(tr("Map size in tiles and bytes"));
    m_size->setMargin(4);
    addWidget(m_size);

    letKeysReach(this); // the layers are in no menu

    connect(m_tiles, &QAction::toggled, this, &ToolBar::mapVisibilityChanged);
    connect(m_objects, &QAction::toggled, this, &ToolBar::objectVisibilityChanged);
    connect(m_sprites, &QAction::toggled, this, &ToolBar::spriteVisibilityChanged);
    for (const QSpinBox *side : {m_width, m_height})
        connect(side, &QSpinBox::valueChanged, this, [this] { emit viewPortChanged(viewport()); });
    connect(m_background, &QSpinBox::valueChanged, this, &ToolBar::backgroundTileIndexChanged);
    connect(m_transparency, &QSpinBox::valueChanged, this, &ToolBar::transparencyIndexChanged);
    connect(m_snap, &QSpinBox::valueChanged, this, &ToolBar::snapToValueChanged);
}

QAction *ToolBar::addLayer(const QString &name, const QString &icon, const QString &text, const QString &toolTip)
{
    QAction *action = addAction(themedIcon(icon), text);
    action->setCheckable(true);
    action->setChecked(true);
    action->setToolTip(toolTip);
    return Commands::add(action, QLatin1String("mapLayers.") + name);
}

QSpinBox *ToolBar::addSpinBox(int minimum, int maximum, int value, const QString &toolTip, const QString &name)
{
    auto *spinBox = new QSpinBox;
    spinBox->setRange(minimum, maximum);
    spinBox->setValue(value);
    spinBox->setToolTip(toolTip);
    spinBox->setAccessibleName(name);
    addWidget(spinBox);
    return spinBox;
}

void ToolBar::addLabel(const QString &text)
{
    auto *label = new QLabel(text);
    label->setContentsMargins(4, 0, 4, 0);
    addWidget(label);
}

void ToolBar::showState(const State &state)
{
    const QSignalBlocker blocker(this);
    m_tiles->setChecked(state.tilesVisible);
    m_objects->setChecked(state.objectsVisible);
    m_sprites->setChecked(state.spritesVisible);
    m_width->setValue(state.viewport.width());
    m_height->setValue(state.viewport.height());
    m_background->setValue(state.backgroundTileIndex);
    m_transparency->setValue(state.transparencyIndex);
    m_snap->setValue(state.snap);
}

QSize ToolBar::viewport() const
{
    return {m_width->value(), m_height->value()};
}

QString ToolBar::sizeText() const
{
    return m_size->text();
}

void ToolBar::setSizeText(const QString &text)
{
    m_size->setText(text);
}

} // namespace MapEditor
