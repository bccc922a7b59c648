#include "editors/map/terraindialog.h"

#include "editors/map/paintkit.h"
#include "editors/map/terrainmarks.h"
#include "ui/svgiconengine.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

namespace MapEditor {

TerrainDialog::TerrainDialog(QWidget *parent)
    : DialogBase(tr("Terrains"), parent)
    , m_list(new QListWidget)
    , m_remove(new QPushButton(themedIcon(QStringLiteral(":/Trashcan")), tr("Remove")))
    , m_add(new QPushButton(themedIcon(QStringLiteral(":/Plus")), tr("Add")))
    , m_name(new QLineEdit)
    , m_neighbours(new QComboBox)
    , m_turns(new QCheckBox(tr("Turn tiles where none has the borders")))
    , m_marks(new TerrainMarks)
{
    m_list->setAccessibleName(tr("Terrains"));
    m_list->setMinimumHeight(80);
    m_list->setMaximumHeight(110);
    m_neighbours->addItems({tr("The 4 cells beside"), tr("All 8 cells around")});
    m_neighbours->setToolTip(tr("Which neighbours decide about the tile of a cell"));
    m_turns->setToolTip(tr("Also takes tiles that have the borders when they are rotated, flipped or mirrored"));
    auto *buttons = new QVBoxLayout;
    buttons->addWidget(m_add);
    buttons->addWidget(m_remove);
    buttons->addStretch();
    auto *row = new QHBoxLayout;
    row->addWidget(m_list, 1);
    row->addLayout(buttons);
    form()->addRow(tr("Terrains"), row);
    form()->addRow(tr("Name"), m_name);
    form()->addRow(tr("Looks at"), m_neighbours);
    form()->addRow(QString(), m_turns);

    auto *explanation =
        new QLabel(tr("Mark the middle of each tile of the terrain, and the sides and corners where it goes on. The "
                      "right button takes marks away."));
    explanation->setWordWrap(true);
    body()->addWidget(explanation);
    auto *scroller = new QScrollArea;
    scroller->setFocusPolicy(Qt::NoFocus); // the marks have the keyboard
    scroller->setWidget(m_marks);
    scroller->setWidgetResizable(true);
    scroller->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroller->setMinimumSize(m_marks->sizeHint().width() + 24, 240);
    body()->addWidget(scroller, 1);
    resize(sizeHint().expandedTo({480, 620}).boundedTo(screen()->availableSize() - QSize(40, 60)));

    connect(m_add, &QPushButton::clicked, this, &TerrainDialog::addTerrain);
    connect(m_remove, &QPushButton::clicked, this, &TerrainDialog::removeTerrain);
    connect(m_list, &QListWidget::currentRowChanged, this, &TerrainDialog::showTerrain);
    connect(m_name, &QLineEdit::textEdited, this, &TerrainDialog::store);
    connect(m_neighbours, &QComboBox::currentIndexChanged, this, &TerrainDialog::store);
    connect(m_turns, &QCheckBox::toggled, this, &TerrainDialog::store);
    connect(m_marks, &TerrainMarks::edited, this, &TerrainDialog::store);
}

void TerrainDialog::edit(const QPointer<TileSet> &tileSet, const QList<Terrain> &terrains)
{
    m_tileSet = tileSet;
    m_terrains = terrains;
    {
        const QScopedValueRollback showing(m_showing, true);
        m_list->clear();
        for (const Terrain &terrain : terrains)
            m_list->addItem(terrain.name);
    }
    if (terrains.isEmpty())
        addTerrain();
    m_list->setCurrentRow(0);
    showTerrain(0);
}

void TerrainDialog::addTerrain()
{
    if (m_terrains.size() >= PaintKit::MostTerrains)
        return;
    Terrain terrain;
    terrain.name = tr("Terrain %1").arg(m_terrains.size() + 1);
    m_terrains.append(terrain);
    m_list->addItem(terrain.name);
    m_list->setCurrentRow(m_list->count() - 1);
    m_name->setFocus();
    m_name->selectAll();
}

void TerrainDialog::removeTerrain()
{
    const int row = m_list->currentRow();
    if (row < 0 || row >= m_terrains.size())
        return;
    m_terrains.removeAt(row);
    delete m_list->takeItem(row);
    showTerrain(m_list->currentRow());
    revalidate();
}

void TerrainDialog::showTerrain(int index)
{
    if (m_showing)
        return;
    const QScopedValueRollback showing(m_showing, true);
    const bool some = index >= 0 && index < m_terrains.size();
    const Terrain terrain = m_terrains.value(index);
    m_name->setText(terrain.name);
    m_neighbours->setCurrentIndex(terrain.corners ? 1 : 0);
    m_turns->setChecked(terrain.turns);
    m_marks->show(some ? m_tileSet : nullptr, terrain);
    for (QWidget *field : std::initializer_list<QWidget *>{m_name, m_neighbours, m_turns, m_marks, m_remove})
        field->setEnabled(some);
    m_add->setEnabled(m_terrains.size() < PaintKit::MostTerrains);
}

void TerrainDialog::store()
{
    const int row = m_list->currentRow();
    if (m_showing || row < 0 || row >= m_terrains.size())
        return;
    Terrain terrain = m_marks->terrain();
    terrain.name = m_name->text();
    terrain.corners = m_neighbours->currentIndex() == 1;
    terrain.turns = m_turns->isChecked();
    m_terrains[row] = terrain;
    m_list->item(row)->setText(terrain.name);
    if (m_marks->terrain() != terrain)
        m_marks->show(m_tileSet, terrain);
    revalidate();
}

QString TerrainDialog::problem() const
{
    const bool named = std::ranges::all_of(m_terrains, [](const Terrain &terrain) { return !terrain.name.isEmpty(); });
    return named ? QString() : tr("Every terrain needs a name");
}

} // namespace MapEditor
