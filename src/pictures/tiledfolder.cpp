#include "pictures/tiledfolder.h"

#include "model/picturefile.h"
#include "pictures/foreignfile.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

using ForeignFile::Texts;

namespace {

bool isBelow(const QString &path, const QString &folder)
{
    return path.startsWith(folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/'));
}

/// Pictures of more than 8 bits a component as ordinary ones; indices stay.
QImage ordinary(QImage picture)
{
    if (picture.format() == QImage::Format_Indexed8)
        return picture;
    const bool isClear = picture.hasAlphaChannel();
    return std::move(picture).convertToFormat(isClear ? QImage::Format_ARGB32 : QImage::Format_RGB32, Qt::AvoidDither);
}

QImage withClear(QImage picture, QRgb transparent)
{
    const auto isTransparent = [transparent](QRgb colour) { return (colour & RGB_MASK) == (transparent & RGB_MASK); };
    if (picture.format() == QImage::Format_Indexed8) {
        QList<QRgb> colours = picture.colorTable();
        std::replace_if(colours.begin(), colours.end(), isTransparent, 0);
        picture.setColorTable(colours);
        return picture;
    }
    picture.convertTo(QImage::Format_ARGB32);
    for (int y = 0; y < picture.height(); ++y) {
        auto *row = reinterpret_cast<QRgb *>(picture.scanLine(y));
        std::replace_if(row, row + picture.width(), isTransparent, 0);
    }
    return picture;
}

} // namespace

TiledFolder::TiledFolder(const QString &fileName, TiledReferences references)
    : m_folder(QFileInfo(fileName).absolutePath())
    , m_canonical(QDir(m_folder).canonicalPath())
    , m_references(references)
{ }

TiledFolder::Place TiledFolder::locate(const QString &folder, const QString &reference) const
{
    const QString written = QString(reference).replace(QLatin1Char('\\'), QLatin1Char('/'));
    if (written.contains(QChar::Null)) // of which Qt warns
        return {{}, false, written};
    const QString path = QDir::cleanPath(QDir(folder).absoluteFilePath(written));
    const Place outside{{}, true, path};
    // what is elsewhere is not even looked at
    if (m_references == TiledReferences::Below && !isBelow(path, m_folder) && !isBelow(path, m_canonical))
        return outside;
    const QString canonical = QFileInfo(path).canonicalFilePath();
    if (canonical.isEmpty())
        return {{}, false, written};
    if (m_references == TiledReferences::Below && !isBelow(canonical, m_canonical))
        return outside;
    return {canonical, false, written};
}

Result<QImage> TiledFolder::picture(const Place &place, std::optional<QRgb> transparent)
{
    if (place.isOutside)
        return Failure{Texts::tr("“%1” is not in the file's folder").arg(place.name)};
    if (place.path.isEmpty())
        return Failure{Texts::tr("“%1” is not there").arg(place.name)};
    const QString key = transparent ? place.path + QLatin1Char('\0') + QString::number(*transparent) : place.path;
    if (const auto known = m_pictures.constFind(key); known != m_pictures.cend())
        return *known;
    Result<QImage> read = readPicture(place.path);
    if (read && transparent)
        read = withClear(*std::move(read), *transparent);
    if (!read)
        read = Failure{Texts::tr("“%1”: %2").arg(place.name, read.reason())};
    return *m_pictures.insert(key, std::move(read));
}

Result<QImage> TiledFolder::readPicture(const QString &path)
{
    const qint64 pixels = PictureFile::pixelCount(path);
    if (pixels > m_pixelsLeft)
        return Failure{Texts::tr("the pictures have more than %1 million pixels together").arg(MaxPixels / 1'000'000)};
    PictureFile file = PictureFile::read(path);
    if (file.image.isNull())
        return Failure{file.refusal.isEmpty() ? Texts::tr("it is no picture that can be read") : file.refusal};
    m_pixelsLeft -= pixels;
    return ordinary(std::move(file.image));
}
