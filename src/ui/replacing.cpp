#include "ui/replacing.h"

#include "ui/titlewidth.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

bool mayReplaceChosenFile(QFileDialog &dialog)
{
    // Qt's own dialog, which is made of widgets, has asked
    if (dialog.findChild<QDialogButtonBox *>())
        return true;

    const QString chosen = dialog.selectedFiles().value(0);
    const QString suffix = dialog.defaultSuffix();
    dialog.setDefaultSuffix({});
    const QString typed = dialog.selectedFiles().value(0);
    dialog.setDefaultSuffix(suffix);
    if (chosen == typed || !QFileInfo::exists(chosen))
        return true;

    QMessageBox box(QMessageBox::Warning, dialog.windowTitle(),
                    QFileDialog::tr("%1 already exists.\nDo you want to replace it?").arg(QFileInfo(chosen).fileName()),
                    QMessageBox::Yes | QMessageBox::No, dialog.parentWidget());
    box.setDefaultButton(QMessageBox::No);
    box.setTextFormat(Qt::PlainText);
    widenForTitle(box);
    return box.exec() == QMessageBox::Yes;
}
