#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QTemporaryDir>

/// A folder with the files of a map.
class TiledFiles
{
public:
    QString put(const QString &name, const QByteArray &bytes) const
    {
        const QString path = m_folder.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile::remove(path); // which takes less time than to replace what is in it
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write %s", qPrintable(path));
        return path;
    }
    QString put(const QString &name, const QImage &picture) const
    {
        const QString path = m_folder.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        if (!picture.save(path))
            qFatal("cannot write %s", qPrintable(path));
        return path;
    }
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
};

/// A picture whose pixels are all different, opaque ones.
[[nodiscard]] inline QImage picture(int width, int height, int red = 0)
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y, qRgb(red, x, y));
    }
    return image;
}

/// A map of XML, of 3 × 2 cells of 8 × 8 pixels.
[[nodiscard]] inline QByteArray tmx(const QByteArray &content,
                                    const QByteArray &attributes = "width=\"3\" height=\"2\"")
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!-- a map -->\n<map version=\"1.10\" "
           "orientation=\"orthogonal\" renderorder=\"right-down\" tilewidth=\"8\" tileheight=\"8\" "
        + attributes + ">\n<editorsettings><export target=\"a\"/></editorsettings>\n" + content + "</map>\n";
}

[[nodiscard]] inline QByteArray tmj(const QByteArray &content,
                                    const QByteArray &attributes = "\"width\":3, \"height\":2")
{
    return "{ \"type\":\"map\", \"orientation\":\"orthogonal\", \"tilewidth\":8, \"tileheight\":8, " + attributes + ", "
        + content + "}";
}

/// A layer of such a map.
[[nodiscard]] inline QByteArray xmlLayer(const QByteArray &csv, const QByteArray &attributes = {})
{
    return "<layer name=\"l\" width=\"3\" height=\"2\" " + attributes + "><data encoding=\"csv\">" + csv
        + "</data></layer>";
}
