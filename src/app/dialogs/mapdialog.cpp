#include "app/dialogs/mapdialog.h"

#include "app/dialogs/assetchooser.h"
#include "model/project.h"

#include <QFormLayout>
#include <QSpinBox>

namespace {

QSpinBox *newSide(int least, QWidget *parent)
{
    auto *box = new QSpinBox(parent);
    box->setRange(least, MapDialog::MostTiles);
    box->setSuffix(MapDialog::tr(" cells"));
    return box;
}

} // namespace

MapDialog::MapDialog(QWidget *parent)
    : CreationDialog(tr("New Map"), tr("Create a new map"), parent)
    , m_tileSet(new AssetChooser(this))
    , m_width(newSide(LeastSize.width(), this))
    , m_height(newSide(LeastSize.height(), this))
{
    form()->addRow(tr("&Tile set"), m_tileSet);
    form()->addRow(tr("&Width"), m_width);
    form()->addRow(tr("&Height"), m_height);
}

void MapDialog::show(const Project &project)
{
    m_tileSet->offerTileSets(project);
    openWithName({});
}

QString MapDialog::problem() const
{
    if (m_tileSet->count() == 0)
        return tr("A map is made of the tiles of a tile set; please create a tile set first");
    return CreationDialog::problem();
}

void MapDialog::submit()
{
    emit accepted(name(), m_tileSet->id(), {m_width->value(), m_height->value()});
}
