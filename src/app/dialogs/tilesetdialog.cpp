#include "app/dialogs/tilesetdialog.h"

#include "app/dialogs/assetchooser.h"
#include "model/project.h"

#include <QCheckBox>
#include <QFormLayout>

TileSetDialog::TileSetDialog(QWidget *parent)
    : CreationDialog(tr("New Tile Set"), tr("Create a new tile set"), parent)
    , m_palette(new AssetChooser(this))
    , m_tileCount(new QComboBox(this))
    , m_hiRes(new QCheckBox(tr("&High resolution"), this))
{
    for (const int count : {256, 512})
        m_tileCount->addItem(QString::number(count), count);
    m_hiRes->setToolTip(tr("For the tilemap of 80 columns, whose pixels are half as wide"));
    form()->addRow(tr("&Palette"), m_palette);
    form()->addRow(tr("&Tiles"), m_tileCount);
    form()->addRow(QString(), m_hiRes);
    connect(m_palette, &QComboBox::currentIndexChanged, this, &TileSetDialog::revalidate);
}

void TileSetDialog::show(const Project &project)
{
    m_palette->offerPalettes(project, tr("New palette of the same name"));
    openWithName({});
}

QString TileSetDialog::problem() const
{
    const QString found = CreationDialog::problem();
    return found.isEmpty() ? m_palette->newPaletteProblem(name()) : found;
}

void TileSetDialog::submit()
{
    emit accepted(name(), m_palette->id(), m_tileCount->currentData().toInt(), m_hiRes->isChecked());
}
