#pragma once

#include <QFileDialog>
#include <QString>
#include <QStringList>

#include <functional>

/// What a file dialog asks for: one file to open, or the name of one to save.
struct FileRequest
{
    QString title;
    QStringList nameFilters; ///< such as "Palette (*.pal *.npl)"
    QFileDialog::AcceptMode acceptMode = QFileDialog::AcceptOpen;
    /// Completes a name that is typed without a suffix; with several filters, the chosen one's suffix does.
    QString defaultSuffix = {};
    /// Where the dialog starts; empty for where the last one ended.
    QString folder = {};
    /// The name of the asset that is saved, if one is.
    QString asset = {};
};

/// Answers a request with a file, or with an empty string when the person gives up. Menus ask through
/// one of these, so that a test can answer in a person's place.
using FileChooser = std::function<QString(const FileRequest &request, QWidget *parent)>;

/// The answer of a person: runs a QFileDialog.
[[nodiscard]] QString runFileDialog(const FileRequest &request, QWidget *parent);

/// The same for a request to open, which may be answered with several files.
using FilesChooser = std::function<QStringList(const FileRequest &request, QWidget *parent)>;
[[nodiscard]] QStringList runFilesDialog(const FileRequest &request, QWidget *parent);
