#pragma once

#include "app/dialogs/creationdialog.h"

#include <QSize>
#include <QUuid>

class AssetChooser;
class Project;
class QSpinBox;

/// Asks for a new map: its name, its tile set, and its size in tiles.
class MapDialog : public CreationDialog
{
    Q_OBJECT
    Q_MOC_INCLUDE("model/project.h")

public:
    static constexpr QSize LeastSize{40, 32};
    static constexpr int MostTiles = 9999; ///< in either direction

    explicit MapDialog(QWidget *parent = nullptr);

public slots:
    /// Opens the dialog with the tile sets of a project.
    void show(const Project &project);

signals:
    void accepted(const QString &name, const QUuid &tileSetId, const QSize &size);

protected:
    [[nodiscard]] QString problem() const override;
    void submit() override;

private:
    AssetChooser *m_tileSet;
    QSpinBox *m_width;
    QSpinBox *m_height;
};
