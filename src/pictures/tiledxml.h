#pragma once

#include "pictures/tiledloader.h"

#include <QXmlStreamReader>

/// Reads the elements of .tmx and .tsx files.
///
/// Files that declare anything of their own (entities, for one) are refused, as are elements with more attributes or
/// deeper in each other than any real file has: nothing that is read grows beyond what the file has.
class TiledXml
{
public:
    TiledXml(const QByteArray &bytes, TiledLoader &loader) : m_bytes(bytes), m_loader(loader) { }

    /// Whether a file that begins so may be a map, or a tile set.
    [[nodiscard]] static bool mayBe(const QByteArray &start, bool isMap);

    void read(bool isMap);

private:
    [[nodiscard]] QString whyUnsafe() const;
    /// Goes to the next element in the one that is read; false at its end.
    [[nodiscard]] bool next();
    [[nodiscard]] bool is(const char *name) const { return m_xml.name() == QLatin1String(name); }
    void skip();
    [[nodiscard]] TiledAttributes attributes() const { return TiledAttributes(m_xml.attributes()); }

    void readLayers(int depth); ///< of a map or group
    void readLayer();
    void readCells(TiledCells &cells);
    void readObjects();
    void readObject();
    void readProperties();
    void readTileSet();
    void readTile();

    QByteArray m_bytes;
    TiledLoader &m_loader;
    QXmlStreamReader m_xml;
};
