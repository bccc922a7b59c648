#pragma once

#include "app/dialogs/creationdialog.h"

#include <QUuid>

class AssetChooser;
class Project;
class QCheckBox;
class QComboBox;

/// Asks for a new tile set: its name, its palette or a new one, how many tiles, and the resolution.
class TileSetDialog : public CreationDialog
{
    Q_OBJECT
    Q_MOC_INCLUDE("model/project.h")

public:
    explicit TileSetDialog(QWidget *parent = nullptr);

public slots:
    /// Opens the dialog with the palettes of a project.
    void show(const Project &project);

signals:
    /// A null palette id asks for a new palette.
    void accepted(const QString &name, const QUuid &paletteId, int tileCount, bool hiRes);

protected:
    [[nodiscard]] QString problem() const override;
    void submit() override;

private:
    AssetChooser *m_palette;
    QComboBox *m_tileCount;
    QCheckBox *m_hiRes;
};
