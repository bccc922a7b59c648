#pragma once

#include "app/dialogs/creationdialog.h"
#include "app/imports/spriteimport.h"

class AssetChooser;
class DepthChooser;
class Project;
class QLabel;

namespace SpriteEditor {

/// Asks what kind of sprite bank is to be made of raw sprite data, and tells how many sprites they are.
class ImportBinaryDialog : public CreationDialog
{
    Q_OBJECT
    Q_MOC_INCLUDE("model/project.h")

public:
    explicit ImportBinaryDialog(QWidget *parent = nullptr);

public slots:
    /// Opens the dialog for a file of raw sprite data.
    void show(const Project &project, const QString &file);

signals:
    void accepted(const SpriteImport &import);

protected:
    [[nodiscard]] QString problem() const override;
    void submit() override;

private:
    QString m_file;
    qint64 m_count = 0; ///< sprites that the file holds
    AssetChooser *m_palette;
    DepthChooser *m_depth;
    QLabel *m_summary;
};

} // namespace SpriteEditor
