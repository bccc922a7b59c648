#include "app/foreignchange.h"

#include "ui/plaintext.h"
#include "ui/titlewidth.h"

#include <QCoreApplication>
#include <QDir>
#include <QMessageBox>
#include <QPushButton>

namespace {

/// The name under which the texts are translated.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ForeignChange)
};

} // namespace

ForeignChange::Answer askAboutForeignChange(QWidget *parent, const ForeignChange &change)
{
    QMessageBox box(QMessageBox::Warning, Texts::tr("File Changed"),
                    Texts::tr("Another program changed the file of this project:\n%1")
                        .arg(QDir::toNativeSeparators(change.filePath)),
                    QMessageBox::NoButton, parent);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(plainText(
        (change.hasUnsavedChanges ? Texts::tr("Load File opens it as it is now and drops your unsaved changes.")
                                  : Texts::tr("Load File opens it as it is now."))
        + QLatin1Char('\n') + Texts::tr("Keep Mine keeps the project as it is here; saving then replaces the file.")));
    QPushButton *load = box.addButton(Texts::tr("&Load File"), QMessageBox::AcceptRole);
    const QPushButton *keep = box.addButton(Texts::tr("&Keep Mine"), QMessageBox::DestructiveRole);
    QPushButton *cancel = box.addButton(QMessageBox::Cancel);
    box.setDefaultButton(change.hasUnsavedChanges ? cancel : load);
    widenForTitle(box);
    box.exec();
    if (box.clickedButton() == load)
        return ForeignChange::Load;
    return box.clickedButton() == keep ? ForeignChange::Keep : ForeignChange::Cancel;
}
