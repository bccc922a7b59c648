#pragma once

#include "ui/enums.h"

#include <QImage>
#include <QObject>
#include <QPointer>
#include <QUuid>

class Canvas;
class QMimeData;

/// Pixels on the system clipboard, in the form that canvases exchange.
///
/// The format "quenmora/canvas-anim" is a big-endian data stream: a reserved 32-bit integer, the
/// image type (32 bits), the 16 bytes of the palette's id, then a PNG of the pixels to the end.
struct CanvasClipboardContent
{
    int reserved = 0;
    Quenmora::Ui::ImageType imageType = Quenmora::Ui::Undefined;
    QUuid paletteId;
    QImage image;

    /// Mime data with this content, and with the image for other programs. The caller owns it.
    [[nodiscard]] QMimeData *toMimeData() const;
    /// The content of mime data; its image is null when there is none or it is damaged.
    [[nodiscard]] static CanvasClipboardContent fromMimeData(const QMimeData *mimeData);
    /// Whether mime data has this format, damaged or not.
    [[nodiscard]] static bool isIn(const QMimeData *mimeData);
};

/// Carries the pixels of a canvas to the system clipboard and back.
class CanvasClipboard : public QObject
{
    Q_OBJECT

public:
    explicit CanvasClipboard(Canvas *canvas);

    /// The pixels that were pasted last; null before the first paste.
    QImage image() const;

public slots:
    /// Copies the canvas's selection, or its whole image without one.
    void copyToClipboard();
    /// Takes the clipboard's pixels; false, and nothing changes, when it holds none that the canvas takes.
    bool pasteFromClipboard();

signals:
    /// cut is true when an action named "Cut" asked for the copy.
    void copied(bool cut);
    void pasted(QUuid paletteId);

private:
    /// Another program's picture in the colours that the canvas offers for it.
    CanvasClipboardContent contentOfPicture(const QMimeData *mimeData) const;

    QPointer<Canvas> m_canvas;
    CanvasClipboardContent m_content;
};
