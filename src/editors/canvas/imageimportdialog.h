#pragma once

#include "model/palette.h"
#include "ui/dialogbase.h"

#include <QImage>
#include <QPointer>

class QCheckBox;
class QLabel;

namespace ImageEditor {

/// Shows a picture as it will look in the colours of an image, and asks whether to scale it.
class ImportDialog : public DialogBase
{
    Q_OBJECT

public:
    explicit ImportDialog(QWidget *parent = nullptr);

    /// Opens the dialog for a picture that goes into an image of a size and colourCount (16 or 256) colours.
    void show(const QImage &picture, const QPointer<Palette> &palette, QSize imageSize, int colourCount);

signals:
    /// The pixels to place at the top left of the image.
    void imported(const QImage &pixels);

protected:
    QString problem() const override;

private:
    void updatePreview();

    QImage m_picture;
    QPointer<Palette> m_palette;
    QSize m_imageSize;
    int m_colourCount = 256;
    QImage m_pixels;
    QLabel *m_preview;
    QLabel *m_size;
    QCheckBox *m_scale;
    QCheckBox *m_keepColours;
    QCheckBox *m_keepClearPixels;
};

} // namespace ImageEditor
