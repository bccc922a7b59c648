#include "app/menus/projectmenu.h"

#include "model/writeproblem.h"
#include "ui/commands.h"
#include "ui/svgiconengine.h"

ProjectMenu::ProjectMenu(const QString &title, QWidget *parent) : QMenu(title, parent) { }

void ProjectMenu::setProject(const QPointer<Project> &project)
{
    m_project = project;
    updateActions();
    refreshImportAgain();
}

QAction *ProjectMenu::newAction(const QString &name, const QString &text, const QList<QKeySequence> &keys,
                                const QString &icon)
{
    QAction *action = addAction(text);
    action->setShortcuts(keys);
    if (!icon.isEmpty())
        action->setIcon(themedIcon(icon));
    return Commands::add(action, name);
}

void ProjectMenu::addImportAgain(const QString &name, const std::function<QUuid()> &activeAsset)
{
    addSeparator();
    m_again = newAction(name, tr("Import A&gain"), {}, QStringLiteral(":/Import"));
    m_activeAsset = activeAsset;
    refreshImportAgain();
    connect(m_again, &QAction::triggered, this, [this] { emit importAgainRequested(m_activeAsset()); });
}

void ProjectMenu::refreshImportAgain()
{
    if (m_again)
        m_again->setEnabled(m_canImportAgain(m_activeAsset()));
}

QString ProjectMenu::fileToOpen(const QString &title, const QStringList &nameFilters) const
{
    return chooseFile({.title = title, .nameFilters = nameFilters});
}

QString ProjectMenu::fileToSave(const QString &title, const QString &asset, const QStringList &nameFilters,
                                const QString &defaultSuffix) const
{
    return chooseFile({.title = title,
                       .nameFilters = nameFilters,
                       .acceptMode = QFileDialog::AcceptSave,
                       .defaultSuffix = defaultSuffix,
                       .asset = asset});
}

QString ProjectMenu::chooseFile(const FileRequest &request) const
{
    return m_fileChooser(request, dialogParent());
}

void ProjectMenu::reportExport(bool written, const QString &asset, const QString &filePath)
{
    if (written)
        emit exported(asset, filePath);
    else
        emit failed(tr("There was a problem exporting data"), tr("Save Error"), writeProblem(filePath));
}

QWidget *ProjectMenu::dialogParent() const
{
    return parentWidget() ? parentWidget()->window() : nullptr;
}
