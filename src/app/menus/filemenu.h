#pragma once

#include "app/menus/projectmenu.h"
#include "app/recentfiles.h"

#include <QDir>
#include <QPointer>
#include <QStringList>

class ProjectDialog;
class QToolBar;

/// The "File" menu: projects are made, opened, saved and closed here. It holds the live list of recent
/// projects.
class FileMenu : public ProjectMenu
{
    Q_OBJECT

public:
    explicit FileMenu(QWidget *parent = nullptr);

    /// A new toolbar of the menu's main entries.
    [[nodiscard]] QToolBar *createToolBar(QWidget *parent) const;

    [[nodiscard]] QStringList recentFiles() const { return m_recentFiles.paths(); }
    /// Takes a stored list as it stands.
    void setRecentFiles(const QStringList &paths);
    /// Puts a project that was opened or saved in front.
    void addRecentFile(const QString &path);
    /// Who answers the question for files to import; runFilesDialog() at first.
    void setFilesChooser(const FilesChooser &chooser) { m_filesChooser = chooser; }
    [[nodiscard]] QMenu *recentMenu() const { return m_recentMenu; }

    // For whoever offers the same elsewhere.
    [[nodiscard]] QAction *newAction() const { return m_new; }
    [[nodiscard]] QAction *openAction() const { return m_open; }
    /// One for each recent project, the latest first; they live until the list changes.
    [[nodiscard]] QList<QAction *> recentProjectActions() const { return m_recentProjects; }

    /// The absolute path of the folder in which "Open" starts to look.
    [[nodiscard]] QString openFolder() const { return m_openFolder.absolutePath(); }
    /// Remembers a folder; an empty path is the current working folder.
    void setOpenFolder(const QString &path) { m_openFolder = QDir(path); }

public slots:
    void showNewDialog();
    void showOpenDialog();
    void showImportDialog();
    void clearRecentFiles();

signals:
    void newProject(const QString &name);
    void openProject(const QString &filePath);
    void saveProject();
    void saveProjectAs();
    void closeProject();
    void importFiles(const QStringList &filePaths);
    void exportProject();
    void exportAgain();
    void displayPreferences();
    void quit();
    void recentFilesChanged();

protected:
    void updateActions() override;

private:
    void rebuildRecentMenu();

    RecentFiles m_recentFiles;
    QDir m_openFolder{QString()};
    QString m_importFolder; ///< of the files that were imported last
    FilesChooser m_filesChooser = runFilesDialog;
    QMenu *m_recentMenu;
    QList<QAction *> m_recentProjects;
    QAction *m_new;
    QAction *m_open;
    QAction *m_save;
    QAction *m_saveAs;
    QAction *m_close;
    QAction *m_import;
    QAction *m_export;
    QAction *m_exportAgain;
    QAction *m_quit;
    QPointer<ProjectDialog> m_dialog;
};
