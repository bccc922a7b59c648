#include "app/menus/filemenu.h"

#include "app/dialogs/projectdialog.h"
#include "app/platform.h"
#include "ui/commands.h"
#include "ui/plaintext.h"

#include <QFileInfo>
#include <QToolBar>

namespace {

QList<QKeySequence> keysFor(QKeySequence::StandardKey key)
{
    return QKeySequence::keyBindings(key) + Platform::keysWithoutStandard(key);
}

} // namespace

FileMenu::FileMenu(QWidget *parent) : ProjectMenu(tr("&File"), parent)
{
    m_new = addCommand(this, QStringLiteral("file.new"), tr("&New"), &FileMenu::showNewDialog,
                       keysFor(QKeySequence::New), QStringLiteral(":/tb-new-file"));
    m_open = addCommand(this, QStringLiteral("file.open"), tr("&Open"), &FileMenu::showOpenDialog,
                        keysFor(QKeySequence::Open), QStringLiteral(":/tb-open-file"));
    m_recentMenu = addMenu(tr("&Recent"));
    m_recentMenu->setToolTipsVisible(true); // projects of the same name differ by their folders
    m_save = addCommand(this, QStringLiteral("file.save"), tr("&Save"), &FileMenu::saveProject,
                        keysFor(QKeySequence::Save), QStringLiteral(":/tb-save-file"));
    m_saveAs = addCommand(this, QStringLiteral("file.saveAs"), tr("Save &As"), &FileMenu::saveProjectAs,
                          keysFor(QKeySequence::SaveAs), QStringLiteral(":/tb-save-file-as"));
    m_close = addCommand(this, QStringLiteral("file.close"), tr("&Close"), &FileMenu::closeProject,
                         keysFor(QKeySequence::Close), QStringLiteral(":/tb-close-document"));
    addSeparator();
    setToolTipsVisible(true);
    m_import = addCommand(this, QStringLiteral("file.import"), tr("&Import…"), &FileMenu::showImportDialog, {},
                          QStringLiteral(":/Import"));
    m_import->setToolTip(tr("Looks at files of any kind, shows what they are, and makes assets of them"));
    addSeparator();
    m_export = addCommand(this, QStringLiteral("file.exportProject"), tr("&Export Project…"), &FileMenu::exportProject,
                          {}, QStringLiteral(":/Export"));
    m_exportAgain = addCommand(this, QStringLiteral("file.exportAgain"), tr("Export A&gain"), &FileMenu::exportAgain,
                               {Qt::Key_F9}, QStringLiteral(":/Update"));
    m_export->setToolTip(tr("Shows what the game takes of this project, in which forms and files, and writes it"));
    m_exportAgain->setToolTip(tr("Writes what has changed of the files for the game, without a dialog"));
    addSeparator();
    addCommand(this, QStringLiteral("file.preferences"), tr("&Preferences"), &FileMenu::displayPreferences)
        ->setMenuRole(QAction::PreferencesRole);
    addSeparator();
    m_quit = addCommand(this, QStringLiteral("file.quit"), tr("&Quit"), &FileMenu::quit,
                        Platform::keysWithoutStandard(QKeySequence::Quit), QStringLiteral(":/tb-exit-application"));
    m_quit->setMenuRole(QAction::QuitRole);
    rebuildRecentMenu();
}

QToolBar *FileMenu::createToolBar(QWidget *parent) const
{
    auto *bar = new QToolBar(tr("File"), parent);
    bar->setObjectName(QStringLiteral("File Toolbar"));
    bar->setIconSize({18, 18});
    bar->setToolButtonStyle(Qt::ToolButtonIconOnly);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    bar->addActions({m_new, m_open, m_save, m_saveAs, m_close});
    bar->addSeparator();
    bar->addAction(m_quit);
    return bar;
}

void FileMenu::updateActions()
{
    for (QAction *action : {m_save, m_saveAs, m_close, m_import, m_export, m_exportAgain})
        action->setEnabled(project());
}

void FileMenu::showNewDialog()
{
    lazily(m_dialog, this, &FileMenu::newProject)->open();
}

void FileMenu::showOpenDialog()
{
    const QString folder = m_openFolder.exists() ? openFolder() : QDir::currentPath(); // one that is gone says nothing
    const QString file = chooseFile({.title = tr("Open project"),
                                     .nameFilters = {tr("Project file (*.quenmora)")},
                                     .acceptMode = QFileDialog::AcceptOpen,
                                     .defaultSuffix = QStringLiteral("quenmora"),
                                     .folder = folder});
    if (file.isEmpty())
        return;
    m_openFolder = QFileInfo(file).absoluteDir();
    emit openProject(file);
}

void FileMenu::showImportDialog()
{
    if (!project())
        return;
    const bool isKnown = !m_importFolder.isEmpty() && QDir(m_importFolder).exists();
    const QStringList files = m_filesChooser(
        {.title = tr("Import"),
         .nameFilters = {tr("All files (*)"),
                         tr("Files of the Next (*.pal *.npl *.nxp *.nxt *.til *.ch8 *.map *.nxm *.nxb "
                            "*.spr *.nxi *.sl2 *.slr *.bin)"),
                         tr("Maps and tile sets of Tiled (*.tmx *.tmj *.tsx *.tsj)"),
                         tr("Sprites of Aseprite (*.aseprite *.ase)"), tr("Palettes (*.gpl *.pal *.act *.hex)"),
                         tr("Pictures (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)")},
         .folder = isKnown ? m_importFolder : openFolder()},
        dialogParent());
    if (files.isEmpty())
        return;
    m_importFolder = QFileInfo(files.constFirst()).absolutePath();
    emit importFiles(files);
}

// Recent projects

void FileMenu::setRecentFiles(const QStringList &paths)
{
    m_recentFiles.setPaths(paths);
    rebuildRecentMenu();
}

void FileMenu::addRecentFile(const QString &path)
{
    m_recentFiles.add(path);
    rebuildRecentMenu();
}

void FileMenu::clearRecentFiles()
{
    m_recentFiles.clear();
    rebuildRecentMenu();
}

void FileMenu::rebuildRecentMenu()
{
    // not clear(): the entry that was just chosen must outlive its own signal
    for (QAction *entry : m_recentMenu->actions()) {
        m_recentMenu->removeAction(entry);
        entry->deleteLater();
    }
    m_recentProjects.clear();
    for (const QString &path : m_recentFiles.paths()) {
        QAction *entry = m_recentMenu->addAction(withoutMnemonic(QFileInfo(path).fileName()));
        entry->setProperty("filePath", path);
        entry->setToolTip(plainText(QDir::toNativeSeparators(path)));
        connect(entry, &QAction::triggered, this, [this, path] { emit openProject(path); });
        m_recentProjects.append(entry);
    }
    if (m_recentProjects.isEmpty()) {
        m_recentMenu->addAction(tr("None"))->setEnabled(false);
    } else {
        m_recentMenu->addSeparator();
        QAction *clear = Commands::add(m_recentMenu->addAction(tr("&Clear")), QStringLiteral("file.clearRecent"));
        connect(clear, &QAction::triggered, this, &FileMenu::clearRecentFiles);
    }
    emit recentFilesChanged();
}
