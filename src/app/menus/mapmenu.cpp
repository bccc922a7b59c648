#include "app/menus/mapmenu.h"

#include "app/dialogs/importpicturedialog.h"
#include "app/dialogs/mapdialog.h"
#include "ui/busy.h"

#include <QScopedValueRollback>

MapMenu::MapMenu(QWidget *parent) : ProjectMenu(tr("&Map"), parent)
{
    addCommand(this, QStringLiteral("map.new"), tr("&New Map"), &MapMenu::showNewDialog,
               {Qt::CTRL | Qt::ALT | Qt::Key_M}, QStringLiteral(":/Map"));
    addSeparator();
    addCommand(this, QStringLiteral("map.import"), tr("&Import"), &MapMenu::showImportDialog, {},
               QStringLiteral(":/Import"));
    m_export = addCommand(this, QStringLiteral("map.export"), tr("&Export"), &MapMenu::showExportDialog, {},
                          QStringLiteral(":/Export"));
    addImportAgain(QStringLiteral("map.importAgain"), [this] { return m_map ? m_map->id() : QUuid(); });
}

void MapMenu::setMap(const QPointer<Map> &map)
{
    setActive(m_map, map);
}

void MapMenu::updateActions()
{
    setEnabled(project());
    m_export->setEnabled(m_map);
}

void MapMenu::showNewDialog()
{
    if (project())
        lazily(m_dialog, this, &MapMenu::create)->show(*project());
}

QString MapMenu::nextTilesFilter()
{
    return tr("NextTiles (*.nxm *.nxt *.nxp *.nxb)");
}

QString MapMenu::imagesFilter()
{
    return tr("Image files (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)");
}

void MapMenu::showImportDialog()
{
    askForImport({nextTilesFilter(), imagesFilter()});
}

void MapMenu::showPictureDialog()
{
    askForImport({imagesFilter(), nextTilesFilter()});
}

void MapMenu::askForImport(const QStringList &nameFilters)
{
    if (!project())
        return;
    const QString file = fileToOpen(tr("Import Map Data"), nameFilters);
    if (!file.isEmpty())
        importFile(file);
}

void MapMenu::importFile(const QString &file)
{
    if (!project())
        return;
    const PictureLoss loss = PictureLoss::of(file, dialogParent());
    if (!loss.any()) {
        requestImport(file, loss);
        return;
    }
    if (!m_pictureDialog) {
        auto *dialog = lazily(m_pictureDialog, this, &MapMenu::importReductionRequested);
        connect(dialog, &ImportPictureDialog::unreduced, this, &MapMenu::requestImport);
    }
    m_pictureDialog->show(file, loss);
}

void MapMenu::requestImport(const QString &filePath, const PictureLoss &picture)
{
    const QScopedValueRollback known(m_picture, &picture);
    emit importRequested(filePath);
}

void MapMenu::showExportDialog()
{
    if (!m_map)
        return;
    const QString file =
        fileToSave(tr("Export Map Data"), m_map->name(), {tr("Map Data (*.map)")}, QStringLiteral(".map"));
    if (file.isEmpty() || !m_map)
        return;
    const Busy busy(dialogParent(), tr("Exporting %1…").arg(m_map->name()), m_map->dataSize());
    reportExport(m_map->exportData(file), m_map->name(), file);
}
