#include "editors/canvas/tileattributeseditor.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QSignalBlocker>
#include <QSpinBox>

#include <limits>

TileAttributesEditor::TileAttributesEditor(QWidget *parent) : QWidget(parent)
{
    m_flags = {{
        {Tile::TA_TOPSOLID, addBox(tr("Solid top"))},
        {Tile::TA_LEFTSOLID, addBox(tr("Solid left"))},
        {Tile::TA_RIGHTSOLID, addBox(tr("Solid right"))},
        {Tile::TA_BOTTOMSOLID, addBox(tr("Solid bottom"))},
        {Tile::TA_DEADLY, addBox(tr("Deadly"))},
        {Tile::TA_COLLECTIBLE, addBox(tr("Collectible"))},
        {Tile::TA_LADDER, addBox(tr("Ladder"))},
        {Tile::TA_DOOR, addBox(tr("Door"))},
    }};
    m_solid = addBox(tr("Solid on all edges"));
    m_value = new QSpinBox(this);
    m_value->setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    m_value->setToolTip(tr("A number of your own for the game"));

    auto *grid = new QGridLayout;
    grid->addWidget(m_solid, 0, 0, 1, 2);
    for (int i = 0; i < int(m_flags.size()); ++i) {
        const auto [bit, box] = m_flags[size_t(i)];
        // The edges stand left, the other attributes right.
        grid->addWidget(box, 1 + i % 4, i / 4);
        connect(box, &QCheckBox::toggled, this, [this, bit = bit](bool on) { setFlag(bit, on); });
    }
    auto *form = new QFormLayout;
    form->addRow(tr("Value"), m_value);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addLayout(form);

    connect(m_solid, &QCheckBox::clicked, this, [this](bool on) { setFlag(Tile::TA_SOLID, on); });
    connect(m_value, &QSpinBox::valueChanged, this, [this](int value) {
        if (tile())
            tile()->setValue(value);
    });
    setTile(nullptr, -1);
}

QCheckBox *TileAttributesEditor::addBox(const QString &text)
{
    return new QCheckBox(text, this);
}

Tile *TileAttributesEditor::tile() const
{
    return m_tileSet ? m_tileSet->tile(m_index) : nullptr;
}

void TileAttributesEditor::setTile(const QPointer<TileSet> &tileSet, int index)
{
    m_tileSet = tileSet;
    m_index = index;
    setEnabled(tile());
    const QSignalBlocker blocker(m_value);
    m_value->setValue(tile() ? tile()->value() : 0);
    showFlags();
}

void TileAttributesEditor::setFlag(int bit, bool on)
{
    if (tile())
        tile()->setAttribute(bit, on);
    showFlags();
}

void TileAttributesEditor::showFlags()
{
    const auto isSet = [this](int bit) { return tile() && tile()->hasAttribute(bit); };
    for (const auto &[bit, box] : m_flags) {
        const QSignalBlocker blocker(box);
        box->setChecked(isSet(bit));
    }
    const bool some = tile() && (tile()->attributes() & Tile::TA_SOLID);
    m_solid->setCheckState(isSet(Tile::TA_SOLID) ? Qt::Checked : some ? Qt::PartiallyChecked : Qt::Unchecked);
}
