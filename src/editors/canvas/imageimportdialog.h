#pragma once

#include "editors/canvas/imageimport.h"
#include "model/palette.h"
#include "ui/dialogbase.h"

#include <QImage>
#include <QPointer>

class PicturePreview;
class QCheckBox;
class QLabel;
class ReductionBox;

namespace ImageEditor {

/// Shows a picture as it will look in the colours of an image, or in a palette of its own, and asks whether to scale it
/// and how to get along with fewer colours.
class ImportDialog : public DialogBase
{
    Q_OBJECT

public:
    explicit ImportDialog(QWidget *parent = nullptr);

    /// Opens the dialog for a picture that goes into an image of a size and colourCount (16 or 256) colours.
    void show(const QImage &picture, const QPointer<Palette> &palette, QSize imageSize, int colourCount);

    /// What is chosen.
    [[nodiscard]] ImageImport choices() const;
    /// Whether there is somebody who makes a palette for the picture.
    void setOffersNewPalette(bool offers) { m_offersNewPalette = offers; }

signals:
    /// The pixels to place at the top left of the image.
    void imported(const QImage &pixels);
    /// The same with a palette of these 256 colours, one of which is transparent, or -1.
    void importedWithPalette(const QImage &pixels, int transparent);

protected:
    QString problem() const override;
    void submit() override;

private:
    void updatePreview();

    QImage m_picture;
    QPointer<Palette> m_palette;
    QSize m_imageSize;
    int m_colourCount = 256;
    bool m_offersNewPalette = false;
    bool m_hasClearPixels = false;
    ImageImport::Result m_result; ///< of the choices that are shown
    PicturePreview *m_before;
    PicturePreview *m_after;
    QLabel *m_size;
    QLabel *m_summary;
    QCheckBox *m_scale;
    QCheckBox *m_keepColours;
    QCheckBox *m_keepClearPixels;
    QCheckBox *m_newPalette;
    ReductionBox *m_reduction;
};

} // namespace ImageEditor
