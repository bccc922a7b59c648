#include "app/commands/commanddesk.h"

#include "app/commands/commandplaces.h"
#include "app/commands/shortcutsdialog.h"
#include "app/documentcontroller.h"
#include "app/documenttabview.h"
#include "app/menus/filemenu.h"
#include "app/menus/menubar.h"
#include "editors/animation/blockeditorview.h"
#include "editors/animation/spriteeditorview.h"
#include "editors/canvas/tilepickertool.h"
#include "editors/canvas/tilewindow.h"
#include "editors/map/mapeditorview.h"
#include "editors/map/maptoolpalette.h"
#include "model/animatedblocks.h"
#include "model/image.h"
#include "model/map.h"
#include "model/mapobjects.h"
#include "model/spritebank.h"
#include "ui/svgiconengine.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QMainWindow>
#include <QMenu>

#include <algorithm>
#include <utility>

namespace {

constexpr int MostRecent = 50;
constexpr int TilePicture = 16; ///< side in pixels

/// Whether a person could run an action now by a menu of the menu bar, a button or a key.
bool canRun(const QAction &action)
{
    const QList<QObject *> owners = action.associatedObjects();
    return action.isEnabled() && std::ranges::any_of(owners, [](const QObject *owner) {
               if (const auto *menu = qobject_cast<const QMenu *>(owner))
                   return menu->isEnabled() && canRun(*menu->menuAction());
               const auto *widget = qobject_cast<const QWidget *>(owner);
               return widget && widget->isVisible() && widget->isEnabled();
           });
}

} // namespace

CommandDesk::CommandDesk(QMainWindow *window, const DocumentViews &views, Sources sources)
    : QObject(window)
    , m_window(window)
    , m_views(views)
    , m_sources(std::move(sources))
{ }

// Keys

void CommandDesk::load(const QString &file)
{
    m_file = ShortcutsFile(file);
    const QString problem = m_file.load();
    Commands::instance()->choose(m_file.choices());
    if (!problem.isEmpty())
        emit failed(
            tr("Your keyboard shortcuts could not be read. All commands have their usual keys."),
            tr("Keyboard Shortcuts"),
            tr("%1\n%2 was kept aside under a name that ends in .bad.").arg(problem, QDir::toNativeSeparators(file)));
}

void CommandDesk::choose(const Commands::Choices &choices)
{
    if (choices == Commands::instance()->choices())
        return;
    Commands::instance()->choose(choices);
    const QString problem = m_file.save(choices);
    if (!problem.isEmpty())
        emit failed(tr("Your keyboard shortcuts could not be saved. They hold until you quit."),
                    tr("Keyboard Shortcuts"), problem);
}

void CommandDesk::meetAllEditors()
{
    if (std::exchange(m_metAll, true))
        return;
    MapEditor::MapToolPalette().addPaintTools();
    MapEditor::View{nullptr};
    BlockEditor::View{nullptr};
    SpriteEditor::View{nullptr};
}

void CommandDesk::showShortcuts()
{
    if (m_dialog)
        return;
    meetAllEditors();
    const Commands *commands = Commands::instance();
    const ShortcutTable table(CommandPlaces::sorted(commands->all()), commands->choices(), CommandPlaces::canMeet);
    m_dialog = new ShortcutsDialog(table, CommandPlaces::placeOf, m_window);
    m_dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(m_dialog, &QDialog::accepted, this, [this] { choose(m_dialog->choices()); });
    m_dialog->open();
}

// The palette

void CommandDesk::showPalette()
{
    if (!m_palette) {
        m_palette = new CommandPalette(m_window);
        connect(m_palette, &CommandPalette::chosen, this, [this](const QString &id) {
            m_recent.removeAll(id);
            m_recent.prepend(id);
            m_recent.resize(std::min<qsizetype>(m_recent.size(), MostRecent));
        });
    }
    QList<CommandPalette::Entry> entries = commandEntries();
    addAssets(entries);
    addTiles(entries);
    m_palette->open(entries, m_recent);
}

QAction *CommandDesk::meantOf(const QString &command) const
{
    const QList<QAction *> actions = Commands::instance()->actionsOf(command);
    const auto owned = [&actions](const auto &isMeant) -> QAction * {
        for (QAction *action : actions) {
            const QList<QObject *> owners = action->associatedObjects();
            for (const QObject *owner : owners) {
                const auto *widget = qobject_cast<const QWidget *>(owner);
                if (widget && isMeant(widget))
                    return action;
            }
        }
        return nullptr;
    };
    if (actions.size() < 2)
        return actions.value(0);
    const QWidget *keyboard = QApplication::focusWidget();
    if (QAction *action =
            owned([keyboard](const QWidget *one) { return one == keyboard || one->isAncestorOf(keyboard); }))
        return action;
    const QWidget *page = m_views.tabs->currentWidget();
    if (QAction *action =
            owned([page](const QWidget *one) { return page && (one == page || page->isAncestorOf(one)); }))
        return action;
    return owned([](const QWidget *one) { return one->isVisible(); });
}

QList<CommandPalette::Entry> CommandDesk::commandEntries() const
{
    QList<CommandPalette::Entry> entries;
    const QList<Commands::Command> commands = Commands::instance()->all();
    for (const Commands::Command &command : commands) {
        const QPointer<QAction> action = meantOf(command.name);
        if (!action || command.name == QLatin1String("help.commandPalette"))
            continue;
        entries.append({command.name,
                        [action] { return action ? action->icon() : QIcon(); },
                        {action->iconText(), CommandPlaces::placeOf(command), canRun(*action)},
                        action->shortcut().toString(QKeySequence::NativeText),
                        [action] {
                            if (action)
                                action->trigger();
                        }});
    }
    const QList<QAction *> recent = m_views.menuBar->fileMenu()->recentProjectActions();
    for (QAction *action : recent) {
        const QString path = action->property("filePath").toString();
        entries.append({path,
                        [] { return themedIcon(QStringLiteral(":/Recent")); },
                        {action->iconText(), tr("Recent Projects")},
                        {},
                        [menu = m_views.menuBar->fileMenu(), path] { emit menu->openProject(path); }});
    }
    return entries;
}

void CommandDesk::addAssets(QList<CommandPalette::Entry> &entries) const
{
    const Project *project = m_sources.project();
    if (!project)
        return;
    const auto addAll = [&](const auto &assets, ProjectTree::ProjectNode node, auto open) {
        for (const auto &asset : assets) {
            entries.append({asset->id().toString(),
                            [node] { return ProjectTree::nodeIcon(node); },
                            {asset->name(), ProjectTree::nodeName(node)},
                            {},
                            [documents = m_sources.documents, open, id = asset->id()] { (documents->*open)(id); }});
        }
    };
    addAll(project->maps(), ProjectTree::MapNode, &DocumentController::setActiveMap);
    addAll(project->tileSets(), ProjectTree::TileSetNode, &DocumentController::openTileSet);
    addAll(project->blockSets(), ProjectTree::MapObjectsNode, &DocumentController::setActiveBlockEditor);
    addAll(project->spriteBanks(), ProjectTree::SpriteBankNode, &DocumentController::openSprites);
    addAll(project->images(), ProjectTree::ImageNode, &DocumentController::setActiveImageEditor);
    addAll(project->palettes(), ProjectTree::PaletteNode, &DocumentController::openPalette);
}

void CommandDesk::addTiles(QList<CommandPalette::Entry> &entries)
{
    const QPointer<TileSet> tileSet = m_views.tileEditor->tileSet();
    for (int index = 0; tileSet && index < tileSet->count(); ++index) {
        const auto picture = [tileSet, index] {
            const QImage image = tileSet && index < tileSet->count() ? tileSet->image(index) : QImage();
            return QIcon(QPixmap::fromImage(image.scaled(TilePicture, TilePicture)));
        };
        entries.append({QStringLiteral("%1 %2").arg(tileSet->id().toString()).arg(index),
                        picture,
                        {tr("Tile %1").arg(index + 1), tileSet->name(), true, true},
                        {},
                        [this, index] { chooseTile(index); }});
    }
}

void CommandDesk::chooseTile(int index)
{
    m_views.tileEditor->setTileIndex(index + 1); // a tile number
    m_views.tilePicker->setSelectedIndex(index);
    if (qobject_cast<MapEditor::View *>(m_views.tabs->currentWidget()))
        emit m_views.tilePicker->selectedTileChanged(index);
    else
        m_views.tileEditor->raise();
}
