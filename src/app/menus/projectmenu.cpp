#include "app/menus/projectmenu.h"

#include "model/writeproblem.h"
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

void ProjectMenu::addImportAgain(const std::function<QUuid()> &activeAsset)
{
    addSeparator();
    QAction *again = newAction(tr("Import A&gain"), {}, QStringLiteral(":/Import"));
    again->setEnabled(false);
    connect(this, &QMenu::aboutToShow, this,
            [this, again, activeAsset] { again->setEnabled(m_canImportAgain(activeAsset())); });
    connect(again, &QAction::triggered, this, [this, activeAsset] { emit importAgainRequested(activeAsset()); });
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
