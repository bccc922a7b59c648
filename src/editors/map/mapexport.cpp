#include "editors/map/mapexport.h"

#include "editors/map/exportdialog.h"
#include "model/palette.h"
#include "model/tileset.h"
#include "ui/assettitle.h"
#include "ui/busy.h"

#include <QFileDialog>

namespace MapEditor {

MapExport::MapExport(const QPointer<Map> &map, QWidget *window)
    : QObject(window)
    , m_map(map)
    , m_window(window)
    , m_dialog(new ExportDialog(window))
{
    connect(m_dialog, &QDialog::accepted, this, &MapExport::accepted);
}

void MapExport::start()
{
    if (!m_map)
        return;
    if (!m_folderDialog) {
        m_folderDialog = new QFileDialog(m_window, tr("Choose a directory to export anim into"));
        m_folderDialog->setFileMode(QFileDialog::Directory);
        m_folderDialog->setOption(QFileDialog::ShowDirsOnly);
        connect(m_folderDialog, &QFileDialog::fileSelected, this, &MapExport::folderChosen);
    }
    nameInTitleBar(*m_folderDialog, m_map->name());
    m_folderDialog->open();
}

void MapExport::folderChosen(const QString &folder)
{
    if (!m_map)
        return;
    m_folder = folder;
    m_dialog->offer(*m_map, folder);
    m_dialog->open();
}

void MapExport::accepted()
{
    if (!m_map)
        return;
    const Busy busy(m_window, tr("Exporting %1…").arg(m_map->name()), m_map->dataSize());
    const QPointer<TileSet> tiles = m_map->tileSet();
    if (m_dialog->exportMap())
        emit exportTileMap(m_folder, m_map->id());
    if (m_dialog->exportTiles() && tiles)
        emit exportTiles(m_folder, tiles->id());
    if (m_dialog->exportPalette() && tiles)
        emit exportTilePalette(m_folder, tiles->paletteId());
}

} // namespace MapEditor
