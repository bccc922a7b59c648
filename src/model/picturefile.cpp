#include "model/picturefile.h"

#include "model/nximage.h"
#include "model/pngreader.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QMimeData>

#include <algorithm>
#include <iterator>

namespace {

/// How the pictures of a format begin.
struct Signature
{
    const char *bytes;
    const char *format;
};

constexpr Signature Signatures[] = {
    {"\x89PNG\r\n\x1a\n", "png"},
    {"BM", "bmp"},
    {"GIF8", "gif"},
    {"\xff\xd8\xff", "jpeg"},
    {"P1", "pbm"},
    {"P4", "pbm"},
    {"P2", "pgm"},
    {"P5", "pgm"},
    {"P3", "ppm"},
    {"P6", "ppm"},
    {"/* XPM", "xpm"},
    {"#define", "xbm"},
    {"/*", "xbm"}, // which may start with a comment
};
constexpr qint64 LongestSignature = 8;

constexpr const char *MimeTypes[] = {"image/png",
                                     "image/bmp",
                                     "image/gif",
                                     "image/jpeg",
                                     "image/x-portable-bitmap",
                                     "image/x-portable-graymap",
                                     "image/x-portable-pixmap",
                                     "image/x-xbitmap",
                                     "image/x-xpixmap"};

/// Lets decoders take the memory for the largest picture, whose pixels may have 64 bits. Qt's own limit of 128 MiB is
/// one of the whole program, so it is lifted only for pictures whose size is known.
class AllocationLimit
{
public:
    AllocationLimit() { QImageReader::setAllocationLimit(Mebibytes); }
    ~AllocationLimit() { QImageReader::setAllocationLimit(m_before); }
    Q_DISABLE_COPY_MOVE(AllocationLimit)

private:
    static constexpr int Mebibytes = int(NxImage::MaxPixels * 8 >> 20);
    const int m_before = QImageReader::allocationLimit();
};

/// The name under which the texts are translated.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(PictureFile)
};

PictureFile refused(const QString &refusal = {})
{
    return {{}, refusal};
}

/// Reads the picture of a reader that knows its size.
template <class Reader>
PictureFile decoded(Reader &reader)
{
    const QSize size = reader.size();
    if (size.isEmpty())
        return refused();
    if (!NxImage::accepts(size)) {
        return refused(Texts::tr("It has %1 × %2 pixels; at most %3 × %3, or as many in another shape, can be read")
                           .arg(size.width())
                           .arg(size.height())
                           .arg(PictureFile::MaxSide));
    }
    const AllocationLimit limit;
    QImage image = reader.read();
    return NxImage::accepts(image.size()) ? PictureFile{std::move(image), {}} : refused();
}

/// What comes of the reader for a picture, told by its content, when that has a head; else nothing.
template <class Result, class Use>
Result withReader(QIODevice &device, const Use &use)
{
    const QByteArray start = device.peek(LongestSignature);
    const auto signature = std::find_if(std::begin(Signatures), std::end(Signatures),
                                        [&start](const Signature &known) { return start.startsWith(known.bytes); });
    if (signature == std::end(Signatures))
        return {};
    if (qstrcmp(signature->format, "png") == 0) {
        PngReader reader(device);
        return reader.readHead() ? use(reader) : Result();
    }
    QImageReader reader(&device, signature->format);
    reader.setAutoDetectImageFormat(false); // no other decoder is asked
    return reader.canRead() ? use(reader) : Result();
}

} // namespace

QString PictureFile::failure() const
{
    const QString failure = Texts::tr("Could not read the image file");
    return refusal.isEmpty() ? failure : failure + QLatin1Char('\n') + refusal;
}

PictureFile PictureFile::read(const QString &fileName)
{
    const QFileInfo info(fileName); // of what a link leads to
    if (info.exists() && !info.isFile() && !info.isDir())
        return refused(Texts::tr("It is a pipe or a device, not a file"));
    QFile file(fileName);
    if (!info.isFile() || !file.open(QIODevice::ReadOnly))
        return refused();
    return read(file);
}

PictureFile PictureFile::read(QIODevice &device)
{
    return withReader<PictureFile>(device, [](auto &reader) { return decoded(reader); });
}

qint64 PictureFile::pixelCount(const QString &fileName)
{
    QFile file(fileName);
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly))
        return 0;
    const QSize size = withReader<QSize>(file, [](auto &reader) { return reader.size(); });
    return size.isEmpty() ? 0 : qint64(size.width()) * size.height();
}

QImage PictureFile::of(const QMimeData *mimeData)
{
    if (!mimeData)
        return {};
    for (const char *type : MimeTypes) {
        if (!mimeData->hasFormat(QLatin1String(type)))
            continue;
        QByteArray bytes = mimeData->data(QLatin1String(type));
        QBuffer buffer(&bytes);
        if (QImage image = buffer.open(QIODevice::ReadOnly) ? read(buffer).image : QImage(); !image.isNull())
            return image;
    }
    // asked for a picture, Qt would decode whatever it can
    const QStringList offered = mimeData->formats();
    const bool encoded = std::any_of(offered.cbegin(), offered.cend(),
                                     [](const QString &type) { return type.startsWith(QLatin1String("image/")); });
    return encoded ? QImage() : mimeData->imageData().value<QImage>();
}
