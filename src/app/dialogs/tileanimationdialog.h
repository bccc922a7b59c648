#pragma once

#include "app/dialogs/creationdialog.h"

#include <QUuid>

class AssetChooser;
class Project;

/// Asks for a new set of tile animations: its name and the tile set that they are made of.
class TileAnimationDialog : public CreationDialog
{
    Q_OBJECT
    Q_MOC_INCLUDE("model/project.h")

public:
    explicit TileAnimationDialog(QWidget *parent = nullptr);

public slots:
    /// Opens the dialog with the tile sets of a project, this one chosen.
    void show(const Project &project, const QUuid &tileSetId);

signals:
    void accepted(const QString &name, const QUuid &tileSetId);

protected:
    [[nodiscard]] QString problem() const override;
    void submit() override;

private:
    AssetChooser *m_tileSet;
};
