#pragma once

#include "app/dialogs/creationdialog.h"
#include "model/enums.h"

#include <QUuid>

class AssetChooser;
class Project;
class QComboBox;

/// Asks for a new full-screen image: its name, its mode and its palette.
class ImageDialog : public CreationDialog
{
    Q_OBJECT
    Q_MOC_INCLUDE("model/project.h")

public:
    explicit ImageDialog(QWidget *parent = nullptr);

public slots:
    /// Opens the dialog with the palettes of a project, one of which is proposed.
    void show(const Project &project, const QUuid &palette = {});

signals:
    void accepted(const QString &name, Quenmora::ImageMode mode, const QUuid &paletteId);

protected:
    [[nodiscard]] QString problem() const override;
    void submit() override;

private:
    QComboBox *m_mode;
    AssetChooser *m_palette;
};
