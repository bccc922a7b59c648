#include "app/menus/projectmenu.h"

#include "ui/svgiconengine.h"

ProjectMenu::ProjectMenu(const QString &title, QWidget *parent) : QMenu(title, parent) { }

void ProjectMenu::setProject(const QPointer<Project> &project)
{
    m_project = project;
    updateActions();
}

QAction *ProjectMenu::newAction(const QString &text, const QKeySequence &shortcut, const QString &icon)
{
    QAction *action = addAction(text);
    action->setShortcut(shortcut);
    if (!icon.isEmpty())
        action->setIcon(themedIcon(icon));
    return action;
}

QString ProjectMenu::fileToOpen(const QString &title, const QStringList &nameFilters) const
{
    return chooseFile({title, nameFilters, QFileDialog::AcceptOpen, QString(), QString()});
}

QString ProjectMenu::fileToSave(const QString &title, const QStringList &nameFilters,
                                const QString &defaultSuffix) const
{
    return chooseFile({title, nameFilters, QFileDialog::AcceptSave, defaultSuffix, QString()});
}

QString ProjectMenu::chooseFile(const FileRequest &request) const
{
    return m_fileChooser(request, dialogParent());
}

void ProjectMenu::reportExportFailure()
{
    emit failed(tr("There was a problem exporting data"), tr("Save Error"));
}

QWidget *ProjectMenu::dialogParent() const
{
    return parentWidget() ? parentWidget()->window() : nullptr;
}
