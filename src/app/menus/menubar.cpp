#include "app/menus/menubar.h"

#include "app/menus/editmenu.h"
#include "app/menus/filemenu.h"
#include "app/menus/helpmenu.h"
#include "app/menus/imagemenu.h"
#include "app/menus/mapmenu.h"
#include "app/menus/palettemenu.h"
#include "app/menus/spritemenu.h"
#include "app/menus/tilemenu.h"
#include "app/menus/viewmenu.h"

MenuBar::MenuBar(QWidget *parent)
    : QMenuBar(parent)
    , m_file(new FileMenu(this))
    , m_edit(new EditMenu(this))
    , m_palette(new PaletteMenu(this))
    , m_tile(new TileMenu(this))
    , m_map(new MapMenu(this))
    , m_sprite(new SpriteMenu(this))
    , m_image(new ImageMenu(this))
    , m_view(new ViewMenu(this))
    , m_help(new HelpMenu(this))
{
    for (QMenu *menu : findChildren<QMenu *>(Qt::FindDirectChildrenOnly))
        addMenu(menu);
    for (const ProjectMenu *menu : findChildren<ProjectMenu *>(Qt::FindDirectChildrenOnly)) {
        connect(menu, &ProjectMenu::failed, this, &MenuBar::failed);
        connect(menu, &ProjectMenu::exported, this, &MenuBar::exported);
        connect(menu, &ProjectMenu::importAgainRequested, this, &MenuBar::importAgainRequested);
    }
    m_image->setPaletteProvider([this] { return m_palette->palette(); });
    setProject(nullptr);
}

void MenuBar::setFileChooser(const FileChooser &chooser)
{
    for (ProjectMenu *menu : findChildren<ProjectMenu *>(Qt::FindDirectChildrenOnly))
        menu->setFileChooser(chooser);
    m_file->setFilesChooser([chooser](const FileRequest &request, QWidget *parent) {
        const QString file = chooser(request, parent);
        return file.isEmpty() ? QStringList() : QStringList{file};
    });
}

void MenuBar::setImportAgainCheck(const std::function<bool(const QUuid &)> &canImport)
{
    for (ProjectMenu *menu : findChildren<ProjectMenu *>(Qt::FindDirectChildrenOnly))
        menu->setImportAgainCheck(canImport);
}

void MenuBar::refreshImportAgain()
{
    for (ProjectMenu *menu : findChildren<ProjectMenu *>(Qt::FindDirectChildrenOnly))
        menu->refreshImportAgain();
}

void MenuBar::setProject(const QPointer<Project> &project)
{
    for (ProjectMenu *menu : findChildren<ProjectMenu *>(Qt::FindDirectChildrenOnly))
        menu->setProject(project);
}
