#include "pictures/tiledxml.h"

#include <QBuffer>

#include <algorithm>

using ForeignFile::Texts;

namespace {

constexpr char ByteOrderMark[] = "\xef\xbb\xbf";

/// What comes after declarations and comments in front of the first element.
QByteArrayView fromFirstElement(QByteArrayView text)
{
    for (qsizetype at = text.indexOf('<'); at >= 0 && at + 1 < text.size(); at = text.indexOf('<', at + 1)) {
        if (text[at + 1] != '?' && text[at + 1] != '!')
            return text.sliced(at);
    }
    return {};
}

} // namespace

bool TiledXml::mayBe(const QByteArray &start, bool isMap)
{
    const QByteArray trimmed = start.startsWith(ByteOrderMark) ? start.sliced(3) : start.trimmed();
    const QByteArrayView element = fromFirstElement(trimmed);
    return trimmed.startsWith('<') && element.startsWith(isMap ? "<map" : "<tileset");
}

/// The parser keeps all attributes of an element, compares each with all others, and keeps all declarations.
QString TiledXml::whyUnsafe() const
{
    constexpr int MostAttributes = 100;
    if (m_bytes.contains('\0'))
        return Texts::tr("It is no XML in UTF-8");
    int attributeCount = 0;
    bool isInElement = false;
    char quote = 0;
    for (qsizetype at = 0; at < m_bytes.size(); ++at) {
        const char character = m_bytes[at];
        if (character == '<') { // which values of attributes do not have
            const QByteArrayView rest = QByteArrayView(m_bytes).sliced(at + 1);
            const bool isDeclaration = rest.startsWith('!');
            if (isDeclaration && !rest.startsWith("!--") && !rest.startsWith("![CDATA[")
                && !rest.startsWith("!DOCTYPE"))
                return Texts::tr("It declares elements or entities of its own");
            isInElement = !isDeclaration && !rest.startsWith('?');
            attributeCount = 0;
            quote = 0;
        } else if (!isInElement) {
            continue;
        } else if (quote != 0) {
            quote = character == quote ? 0 : quote;
        } else if (character == '"' || character == '\'') {
            quote = character;
            if (++attributeCount > MostAttributes)
                return Texts::tr("An element has more than %1 attributes").arg(MostAttributes);
        } else if (character == '>') {
            isInElement = false;
        }
    }
    return {};
}

void TiledXml::read(bool isMap)
{
    if (const QString reason = whyUnsafe(); !reason.isEmpty())
        return m_loader.fail(reason);
    QBuffer buffer(&m_bytes); // from which it takes a little at a time
    if (!buffer.open(QIODevice::ReadOnly))
        return m_loader.fail(Texts::tr("It could not be read: %1").arg(buffer.errorString()));
    m_xml.setDevice(&buffer);
    if (!m_xml.readNextStartElement() && !m_xml.hasError())
        m_xml.raiseError(Texts::tr("there is no element"));
    if (!m_xml.hasError() && !is(isMap ? "map" : "tileset"))
        m_xml.raiseError(Texts::tr("“%1” stands where “%2” does")
                             .arg(m_xml.name().toString(), QLatin1String(isMap ? "map" : "tileset")));
    if (!m_xml.hasError() && isMap) {
        m_loader.beginMap(attributes());
        readLayers(0);
    } else if (!m_xml.hasError()) {
        readTileSet();
    }
    if (!m_loader.hasFailed() && m_xml.hasError())
        m_loader.fail(Texts::tr("Line %1: %2").arg(m_xml.lineNumber()).arg(m_xml.errorString()));
    m_xml.setDevice(nullptr);
}

bool TiledXml::next()
{
    return !m_loader.hasFailed() && m_xml.readNextStartElement();
}

void TiledXml::skip()
{
    for (int depth = 1; depth > 0 && !m_xml.atEnd();) {
        switch (m_xml.readNext()) {
        case QXmlStreamReader::StartElement:
            if (++depth > TiledLoader::MaxDepth)
                m_xml.raiseError(Texts::tr("there are too many elements in each other"));
            break;
        case QXmlStreamReader::EndElement:
            --depth;
            break;
        default:
            break;
        }
    }
}

void TiledXml::readLayers(int depth)
{
    if (depth > TiledLoader::MaxDepth)
        m_xml.raiseError(Texts::tr("there are too many elements in each other"));
    while (next()) {
        if (is("tileset")) {
            readTileSet();
        } else if (is("layer")) {
            readLayer();
        } else if (is("objectgroup")) {
            readObjects();
        } else if (is("group")) {
            m_loader.beginGroup(attributes());
            readLayers(depth + 1);
            m_loader.endGroup();
        } else {
            if (is("imagelayer"))
                m_loader.addImageLayer(attributes());
            skip();
        }
    }
}

void TiledXml::readLayer()
{
    m_loader.beginLayer(attributes());
    while (next()) {
        if (!is("data")) {
            skip();
            continue;
        }
        const TiledAttributes form = attributes();
        const QString encoding = form.text("encoding");
        const QString compression = form.text("compression");
        if (!m_loader.isInfinite()) {
            TiledCells cells = m_loader.beginCells(nullptr, encoding, compression);
            readCells(cells);
            m_loader.endCells(cells);
            continue;
        }
        while (next()) {
            const TiledAttributes chunk = attributes();
            TiledCells cells = m_loader.beginCells(&chunk, encoding, compression);
            readCells(cells);
            m_loader.endCells(cells);
        }
    }
}

/// Up to the end of the element that they are in.
void TiledXml::readCells(TiledCells &cells)
{
    while (!m_xml.atEnd() && !m_loader.hasFailed()) {
        switch (m_xml.readNext()) {
        case QXmlStreamReader::Characters:
            cells.add(m_xml.text());
            break;
        case QXmlStreamReader::StartElement: {
            const QStringView gid = m_xml.attributes().value(QLatin1String("gid"));
            bool isNumber = true;
            const quint32 number = gid.isEmpty() ? 0 : gid.toUInt(&isNumber);
            cells.add(isNumber ? std::optional(number) : std::nullopt);
            skip();
            break;
        }
        case QXmlStreamReader::EndElement:
            return;
        default:
            break;
        }
    }
}

void TiledXml::readObjects()
{
    m_loader.beginObjects(attributes());
    while (next()) {
        if (is("object"))
            readObject();
        else
            skip();
    }
}

void TiledXml::readObject()
{
    m_loader.addObject(attributes());
    while (next()) {
        if (is("properties")) {
            readProperties();
            continue;
        }
        if (is("point"))
            m_loader.setShape(TiledMap::Shape::Point);
        else if (is("ellipse") || is("polygon") || is("polyline") || is("text"))
            m_loader.setShape(TiledMap::Shape::Other);
        skip();
    }
}

void TiledXml::readProperties()
{
    while (next()) {
        const TiledAttributes property = attributes();
        QString text = property.text("value");
        if (property.has("value"))
            skip();
        else if (is("property")) // which has a text of several lines
            text = m_xml.readElementText(QXmlStreamReader::ErrorOnUnexpectedElement);
        else
            skip();
        m_loader.addProperty(property.text("name"), property.text("type"), text);
    }
}

void TiledXml::readTileSet()
{
    m_loader.addTileSet(attributes());
    while (next()) {
        if (is("tile")) {
            readTile();
            continue;
        }
        if (is("image"))
            m_loader.addPicture(attributes().text("source"), attributes().text("trans"));
        skip();
    }
}

void TiledXml::readTile()
{
    const qint64 tile = m_loader.number(attributes(), "id", 0, 0, TiledLoader::LargestTile);
    while (next()) {
        if (is("animation")) {
            while (next()) {
                m_loader.addFrame(tile, attributes());
                skip();
            }
            continue;
        }
        if (is("image"))
            m_loader.addTilePicture(tile, attributes().text("source"), attributes().text("trans"));
        skip();
    }
}
