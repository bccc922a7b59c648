#pragma once

#include "model/tileset.h"

#include <QPointer>
#include <QWidget>

#include <array>

class QCheckBox;
class QSpinBox;

/// Edits the gameplay attributes and the free value of one tile.
class TileAttributesEditor : public QWidget
{
    Q_OBJECT

public:
    explicit TileAttributesEditor(QWidget *parent = nullptr);

    /// Shows a tile of a set; disabled without one.
    void setTile(const QPointer<TileSet> &tileSet, int index);

private:
    struct Flag
    {
        int bit;
        QCheckBox *box;
    };

    Tile *tile() const;
    QCheckBox *addBox(const QString &text);
    void setFlag(int bit, bool on);
    void showFlags();

    QPointer<TileSet> m_tileSet;
    int m_index = -1;
    std::array<Flag, 8> m_flags{};
    QCheckBox *m_solid;
    QSpinBox *m_value;
};
