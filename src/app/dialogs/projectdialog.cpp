#include "app/dialogs/projectdialog.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QShowEvent>

ProjectDialog::ProjectDialog(QWidget *parent) : CreationDialog(tr("New Project"), tr("Create a new project"), parent)
{
    qobject_cast<QLabel *>(form()->labelForField(nameField()))->setText(tr("Project &name"));
}

void ProjectDialog::showEvent(QShowEvent *event)
{
    if (!event->spontaneous())
        nameField()->clear();
    CreationDialog::showEvent(event);
}
