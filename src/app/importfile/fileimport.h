#pragma once

#include "importing/addition.h"
#include "importing/importchoices.h"
#include "importing/incomingassets.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

class ImportFileDialog;
class MenuBar;
class Project;
class ProjectActions;
class QMimeData;

/// Imports files of any kind into the open project, one after the other, with a dialog for each.
class FileImport : public QObject
{
    Q_OBJECT

public:
    using ProjectProvider = std::function<Project *()>;

    /// Pictures go on to the dialogs of the menus; dialogParent is the window over which all of them stand.
    FileImport(ProjectProvider project, MenuBar *menus, ProjectActions *actions, QWidget *dialogParent);

    /// Where a change of an asset finds its undo stack.
    void setUndoStackProvider(const Importing::StackProvider &provider) { m_stackFor = provider; }

    [[nodiscard]] ImportFileDialog *dialog();

    /// The files that are dragged and can be imported; none when one of them is a project.
    [[nodiscard]] static QStringList draggedFiles(const QMimeData *data);

public slots:
    /// Replaces what is left of an earlier import.
    void importFiles(const QStringList &filePaths);
    /// Forgets what is left: the project goes.
    void stop();

signals:
    /// A file was imported with these choices.
    void imported(const QString &filePath, const Importing::ImportChoices &choices,
                  const Importing::AddedAssets &added);
    // What it became is to be shown: of several assets the one that the others are for.
    void paletteReady(const QUuid &id);
    void tileSetReady(const QUuid &id);
    void mapReady(const QUuid &id);
    void blocksReady(const QUuid &id);
    void spritesReady(const QUuid &id);
    void imageReady(const QUuid &id);
    /// What was imported, for the status bar.
    void message(const QString &text);
    /// A file could not be imported: a text for the user, its title, and why.
    void failed(const QString &text, const QString &title, const QString &reason);

private:
    void next();
    /// Says what could not be imported, when nothing else is asked any more.
    void finish();
    /// Goes on when the dialog that another import has opened is closed.
    void nextAfterDialog();
    void add(const Importing::ImportChoices &choices, const Importing::IncomingAssets &incoming);
    void show(const Importing::AddedAssets &added);
    void handOver(const QString &kind, const QString &filePath);

    ProjectProvider m_project;
    MenuBar *m_menus;
    ProjectActions *m_actions;
    QPointer<QWidget> m_dialogParent;
    QPointer<ImportFileDialog> m_dialog;
    Importing::StackProvider m_stackFor;
    QStringList m_files; ///< that were asked for
    qsizetype m_next = 0;
    QStringList m_failures; ///< why files could not be imported
};
