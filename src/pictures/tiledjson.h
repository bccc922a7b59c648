#pragma once

#include "pictures/tiledloader.h"

#include <QJsonArray>
#include <QJsonObject>

/// Reads the elements of .tmj and .tsj files.
///
/// The whole file is kept as values, which take many times its size: those with more values than any map has are
/// refused before they are made.
class TiledJson
{
public:
    TiledJson(const QByteArray &bytes, TiledLoader &loader) : m_bytes(bytes), m_loader(loader) { }

    /// Whether a file that begins so is JSON.
    [[nodiscard]] static bool recognises(const QByteArray &start);
    /// Whether it may be a map, or a tile set.
    [[nodiscard]] static bool mayBe(const QByteArray &start, bool isMap);

    void read(bool isMap);

private:
    [[nodiscard]] QString whyUnsafe() const;

    void readMap(const QJsonObject &map);
    void readLayers(const QJsonArray &layers, int depth);
    void readLayer(const QJsonObject &layer);
    void readCells(const QJsonValue &data, const QJsonObject *chunk, const QJsonObject &layer);
    void readObjects(const QJsonObject &layer);
    void readProperties(const QJsonValue &properties, const QJsonObject &types);
    void readTileSet(const QJsonObject &tileSet);

    QByteArray m_bytes;
    TiledLoader &m_loader;
};
