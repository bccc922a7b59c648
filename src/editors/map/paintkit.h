#pragma once

#include "model/stamp.h"
#include "model/terrain.h"
#include "model/tileset.h"
#include "undo/numbering.h"

#include <QJsonArray>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>

namespace MapEditor {

/// What maps of a tile set are painted with besides its tiles: the stamps that were used last or have a name, and the
/// terrains. Their cells follow the tiles when these get other numbers.
class PaintKit : public QObject
{
    Q_OBJECT

public:
    struct KeptStamp
    {
        Stamp stamp;
        QString name; ///< empty for one that may be forgotten
    };

    static constexpr int MostRecent = 12; ///< stamps without a name
    static constexpr int MostNamed = 100;
    static constexpr int MostTerrains = 64;

    explicit PaintKit(TileSet *tileSet, QObject *parent = nullptr);

    [[nodiscard]] TileSet *tileSet() const { return m_tileSet; }

    /// The latest first.
    [[nodiscard]] const QList<KeptStamp> &stamps() const { return m_stamps; }
    /// Brings a stamp to the front, one that is there (of which this is a copy) or a new one.
    void addStamp(Stamp stamp);
    void nameStamp(int index, const QString &name);
    void removeStamp(int index);

    [[nodiscard]] const QList<Terrain> &terrains() const { return m_terrains; }
    void setTerrains(const QList<Terrain> &terrains);

    // As they are kept in a file; what cannot be used of one that is read is left out.
    [[nodiscard]] QJsonArray stampsToJson() const;
    [[nodiscard]] QJsonArray terrainsToJson() const;
    void read(const QJsonArray &stamps, const QJsonArray &terrains);

signals:
    void stampsChanged();
    void terrainsChanged();

private:
    void forgetOldest();
    void renumber();

    QPointer<TileSet> m_tileSet;
    QList<KeptStamp> m_stamps;
    QList<Terrain> m_terrains;
    Numbering::Names m_names; ///< of the tiles, as the cells number them
};

} // namespace MapEditor
