#pragma once

#include "ui/dialogbase.h"

#include <QUuid>

class AssetChooser;
class Project;

/// Asks for one of the palettes of a project.
class PaletteSelectorDialog : public DialogBase
{
    Q_OBJECT
    Q_MOC_INCLUDE("model/project.h")

public:
    explicit PaletteSelectorDialog(QWidget *parent = nullptr);

public slots:
    /// Opens the dialog, the palette in use chosen.
    void show(const Project &project, const QUuid &current);

signals:
    void accepted(const QUuid &paletteId);

protected:
    [[nodiscard]] QString problem() const override;
    void submit() override;

private:
    AssetChooser *m_palette;
};
