#include "app/dialogs/tileanimationdialog.h"

#include "app/dialogs/assetchooser.h"
#include "model/project.h"

#include <QFormLayout>

TileAnimationDialog::TileAnimationDialog(QWidget *parent)
    : CreationDialog(tr("New Map Objects"), tr("Create map objects: animations for maps"), parent)
    , m_tileSet(new AssetChooser(this))
{
    form()->addRow(tr("&Tile set"), m_tileSet);
}

void TileAnimationDialog::show(const Project &project, const QUuid &tileSetId)
{
    m_tileSet->offerTileSets(project);
    m_tileSet->choose(tileSetId);
    openWithName({});
}

QString TileAnimationDialog::problem() const
{
    if (m_tileSet->count() == 0)
        return tr("Map objects are made of the tiles of a tile set; please create a tile set first");
    return CreationDialog::problem();
}

void TileAnimationDialog::submit()
{
    emit accepted(name(), m_tileSet->id());
}
