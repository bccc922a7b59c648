#pragma once

#include "app/imports/importmemory.h"

#include <QObject>

class DocumentController;
class FileImport;
class ImportNotice;
class MenuBar;
class ProjectActions;
class ProjectController;
class ProjectTree;
class QWidget;

/// Remembers what is imported into the open project, brings assets up to date when somebody asks for it, and offers
/// that when their files have changed.
class ImportKeeper : public QObject
{
    Q_OBJECT

public:
    /// The window is that over which progress is shown.
    ImportKeeper(ProjectController *projects, DocumentController *documents, QWidget *window);

    /// Hears of imports from now on.
    void follow(const ProjectActions &actions);
    void follow(const FileImport &files);
    /// Serves "Import Again" from now on.
    void serve(MenuBar &menus, ProjectTree &tree);

    [[nodiscard]] ImportMemory &memory() { return m_memory; }
    /// For the status bar.
    [[nodiscard]] ImportNotice *notice() const { return m_notice; }

public slots:
    void importAgain(const QUuid &asset);
    /// Looks whether files have changed, and offers to import them again.
    void look();

signals:
    void message(const QString &text);
    /// A text for the user, its title, and why.
    void failed(const QString &text, const QString &title, const QString &reason);

private:
    /// Brings it to the front, where undo reaches what is done with it.
    void show(const QUuid &asset);

    ProjectController *m_projects;
    DocumentController *m_documents;
    QWidget *m_window;
    ImportMemory m_memory;
    ImportNotice *m_notice;
    QList<QUuid> m_offered;
};
