#include "app/menus/mapmenu.h"

#include "app/dialogs/mapdialog.h"

MapMenu::MapMenu(QWidget *parent) : ProjectMenu(tr("&Map"), parent)
{
    addCommand(this, tr("&New Map"), &MapMenu::showNewDialog, Qt::CTRL | Qt::ALT | Qt::Key_M, QStringLiteral(":/Map"));
    addSeparator();
    addCommand(this, tr("&Import"), &MapMenu::showImportDialog, {}, QStringLiteral(":/Import"));
    m_export = addCommand(this, tr("&Export"), &MapMenu::showExportDialog, {}, QStringLiteral(":/Export"));
}

void MapMenu::setMap(const QPointer<Map> &map)
{
    if (m_map)
        disconnect(m_map, nullptr, this, nullptr);
    m_map = map;
    if (m_map)
        connect(m_map, &QObject::destroyed, this, [this] { setMap(nullptr); });
    updateActions();
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

void MapMenu::showImportDialog()
{
    if (!project())
        return;
    const QString file =
        chooseFile({.title = tr("Import Map Data"),
                    .nameFilters = {tr("NextTiles (*.nxm *.nxt *.nxp *.nxb)"),
                                    tr("Image files (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)")},
                    .acceptMode = QFileDialog::AcceptOpen,
                    .defaultSuffix = {},
                    .folder = {}});
    if (!file.isEmpty())
        emit importRequested(file);
}

void MapMenu::showExportDialog()
{
    if (!m_map)
        return;
    const QString file = chooseFile({.title = tr("Export Map Data"),
                                     .nameFilters = {tr("Map Data (*.map)")},
                                     .acceptMode = QFileDialog::AcceptSave,
                                     .defaultSuffix = QStringLiteral(".map"),
                                     .folder = {}});
    if (!file.isEmpty() && m_map && !m_map->exportData(file))
        reportExportFailure();
}
