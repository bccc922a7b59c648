#include "editors/canvas/canvasclipboard.h"

#include "editors/canvas/canvas.h"
#include "model/picturefile.h"

#include <QAction>
#include <QBuffer>
#include <QClipboard>
#include <QDataStream>
#include <QGuiApplication>
#include <QMimeData>

namespace {

constexpr auto MimeType = "quenmora/canvas-anim";

/// The indexed picture that follows, null when it is damaged or absurd.
QImage readImage(QIODevice &device)
{
    const QImage image = PictureFile::read(device).image;
    // A colour table that is a ramp of grey comes back as greyscale; its values are the indices.
    if (image.format() == QImage::Format_Grayscale8)
        return image.convertToFormat(QImage::Format_Indexed8);
    return image.format() == QImage::Format_Indexed8 ? image : QImage();
}

} // namespace

QMimeData *CanvasClipboardContent::toMimeData() const
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QDataStream stream(&buffer);
    stream << qint32(reserved) << qint32(imageType) << paletteId;
    image.save(&buffer, "PNG");

    auto *mimeData = new QMimeData;
    mimeData->setData(MimeType, buffer.data());
    mimeData->setImageData(image);
    return mimeData;
}

bool CanvasClipboardContent::isIn(const QMimeData *mimeData)
{
    return mimeData && mimeData->hasFormat(MimeType);
}

CanvasClipboardContent CanvasClipboardContent::fromMimeData(const QMimeData *mimeData)
{
    QByteArray bytes = mimeData ? mimeData->data(MimeType) : QByteArray();
    if (bytes.isEmpty())
        return {};
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QDataStream stream(&buffer);
    qint32 reserved = 0;
    qint32 imageType = 0;
    QUuid paletteId;
    stream >> reserved >> imageType >> paletteId;
    const bool known = imageType >= Quenmora::Ui::Ula && imageType <= Quenmora::Ui::Full256;
    if (stream.status() != QDataStream::Ok || !known)
        return {};
    return {reserved, Quenmora::Ui::ImageType(imageType), paletteId, readImage(buffer)};
}

CanvasClipboard::CanvasClipboard(Canvas *canvas) : QObject(canvas), m_canvas(canvas) { }

QImage CanvasClipboard::image() const
{
    return m_content.imageType == Quenmora::Ui::Undefined ? QImage() : m_content.image;
}

void CanvasClipboard::copyToClipboard()
{
    if (!m_canvas)
        return;
    const QRect copiedRect = m_canvas->hasSelection() ? m_canvas->selection() : m_canvas->image().rect();
    if (copiedRect.isEmpty())
        return;
    const QImage selected = m_canvas->image().copy(copiedRect);
    const CanvasClipboardContent content{0, m_canvas->imageType(), m_canvas->paletteId(), selected};
    QGuiApplication::clipboard()->setMimeData(content.toMimeData());

    const auto *action = qobject_cast<QAction *>(sender());
    emit copied(action && action->text() == Canvas::tr("Cut"));
}

CanvasClipboardContent CanvasClipboard::contentOfPicture(const QMimeData *mimeData) const
{
    if (!m_canvas)
        return {};
    // the canvas converts only what fits into its image
    const QImage pixels = m_canvas->pixelsOf(PictureFile::of(mimeData));
    return {0, m_canvas->imageType(), m_canvas->paletteId(), pixels};
}

bool CanvasClipboard::pasteFromClipboard()
{
    const QMimeData *mimeData = QGuiApplication::clipboard()->mimeData();
    // What a canvas has copied is not taken for a picture when it is damaged.
    const auto content = CanvasClipboardContent::isIn(mimeData) ? CanvasClipboardContent::fromMimeData(mimeData)
                                                                : contentOfPicture(mimeData);
    if (content.image.isNull())
        return false;
    m_content = content;
    emit pasted(content.paletteId);
    return true;
}
