#pragma once

#include "model/terrain.h"
#include "model/tileset.h"
#include "ui/dialogbase.h"

#include <QList>
#include <QPointer>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace MapEditor {

class TerrainMarks;

/// In which the terrains of a tile set are made and their tiles marked.
class TerrainDialog : public DialogBase
{
    Q_OBJECT

public:
    explicit TerrainDialog(QWidget *parent = nullptr);

    void edit(const QPointer<TileSet> &tileSet, const QList<Terrain> &terrains);
    /// As they were edited.
    [[nodiscard]] const QList<Terrain> &terrains() const { return m_terrains; }
    [[nodiscard]] TerrainMarks *marks() const { return m_marks; }

protected:
    QString problem() const override;

private:
    void addTerrain();
    void removeTerrain();
    void showTerrain(int index);
    /// Takes over what was changed of the terrain that is shown.
    void store();

    QPointer<TileSet> m_tileSet;
    QList<Terrain> m_terrains;
    QListWidget *m_list;
    QPushButton *m_remove;
    QPushButton *m_add;
    QLineEdit *m_name;
    QComboBox *m_neighbours;
    QCheckBox *m_turns;
    TerrainMarks *m_marks;
    bool m_showing = false; ///< fields are set, not edited
};

} // namespace MapEditor
