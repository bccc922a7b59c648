#include "app/dialogs/filechooser.h"

#include "ui/assettitle.h"
#include "ui/replacing.h"

#include <QRegularExpression>

namespace {

/// The first suffix that a filter such as "Palette (*.pal *.npl)" names; empty when it names none.
QString suffixOf(const QString &nameFilter)
{
    static const QRegularExpression pattern(QStringLiteral("\\*\\.([A-Za-z0-9]+)"));
    return pattern.match(nameFilter).captured(1);
}

} // namespace

QString runFileDialog(const FileRequest &request, QWidget *parent)
{
    QFileDialog dialog(parent, request.title, request.folder);
    dialog.setAcceptMode(request.acceptMode);
    dialog.setFileMode(request.acceptMode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile
                                                                     : QFileDialog::AnyFile);
    dialog.setNameFilters(request.nameFilters);
    dialog.setDefaultSuffix(request.defaultSuffix);
    if (!request.asset.isEmpty())
        nameInTitleBar(dialog, request.asset);
    if (request.nameFilters.size() > 1 && !request.defaultSuffix.isEmpty()) {
        QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog,
                         [&dialog](const QString &filter) { dialog.setDefaultSuffix(suffixOf(filter)); });
    }
    while (dialog.exec() == QDialog::Accepted && dialog.selectedFiles().size() == 1) {
        if (request.acceptMode == QFileDialog::AcceptOpen || mayReplaceChosenFile(dialog))
            return dialog.selectedFiles().constFirst();
    }
    return {};
}

QStringList runFilesDialog(const FileRequest &request, QWidget *parent)
{
    QFileDialog dialog(parent, request.title, request.folder);
    dialog.setFileMode(QFileDialog::ExistingFiles);
    dialog.setNameFilters(request.nameFilters);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles() : QStringList();
}
