#include "editors/canvas/imageimportdialog.h"

#include "editors/canvas/pictureimport.h"
#include "model/nximage.h"
#include "pictures/machinecolours.h"

#include <QCheckBox>
#include <QLabel>
#include <QVBoxLayout>

namespace ImageEditor {

namespace {

constexpr QSize PreviewSize(320, 256);

}

ImportDialog::ImportDialog(QWidget *parent)
    : DialogBase(tr("Import Image"), parent)
    , m_preview(new QLabel(this))
    , m_size(new QLabel(this))
    , m_scale(new QCheckBox(tr("Scale to fill the image"), this))
    , m_keepColours(new QCheckBox(tr("Keep the machine's colours"), this))
    , m_keepClearPixels(new QCheckBox(tr("Keep transparent pixels"), this))
{
    setHeader(tr("Import a picture"));
    m_preview->setFixedSize(PreviewSize);
    m_preview->setAlignment(Qt::AlignCenter);
    m_preview->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    m_preview->setAccessibleName(tr("Preview"));
    body()->addWidget(m_preview, 0, Qt::AlignHCenter);
    body()->addWidget(m_size, 0, Qt::AlignHCenter);
    body()->addWidget(m_scale);
    m_keepColours->setToolTip(
        tr("Every colour of the picture is one that the Next has: those that the palette has stay "
           "exactly that, and scaling mixes no new ones"));
    body()->addWidget(m_keepColours);
    m_keepClearPixels->setToolTip(tr("They get the transparent entry of the palette, and no colour does"));
    body()->addWidget(m_keepClearPixels);
    connect(m_keepClearPixels, &QCheckBox::toggled, this, &ImportDialog::updatePreview);
    connect(m_scale, &QCheckBox::toggled, this, &ImportDialog::updatePreview);
    connect(m_keepColours, &QCheckBox::toggled, this, &ImportDialog::updatePreview);
    connect(this, &QDialog::accepted, this, [this] { emit imported(m_pixels); });
}

void ImportDialog::show(const QImage &picture, const QPointer<Palette> &palette, QSize imageSize, int colourCount)
{
    m_picture = picture;
    m_palette = palette;
    m_imageSize = imageSize;
    m_colourCount = colourCount;
    m_size->setText(tr("Picture %1 × %2, image %3 × %4")
                        .arg(picture.width())
                        .arg(picture.height())
                        .arg(imageSize.width())
                        .arg(imageSize.height()));
    m_scale->setChecked(false);
    m_scale->setEnabled(picture.size() != imageSize);
    const bool canKeep = MachineColours::areIn(picture);
    m_keepColours->setEnabled(canKeep);
    m_keepColours->setChecked(canKeep);
    NxImage translucent;
    translucent.setTranslucent(picture);
    const int transparent = palette ? palette->transparencyIndex() : -1;
    const bool canBeClear = translucent.hasClearPixels() && transparent >= 0 && transparent < colourCount;
    m_keepClearPixels->setEnabled(canBeClear);
    m_keepClearPixels->setChecked(canBeClear);
    updatePreview();
    DialogBase::open();
}

QString ImportDialog::problem() const
{
    return m_pixels.isNull() ? tr("The picture cannot be used") : QString();
}

void ImportDialog::updatePreview()
{
    // Only what lies inside the image is converted.
    const bool scale = m_scale->isChecked();
    const QImage part = scale ? m_picture : m_picture.copy(QRect(QPoint(), m_imageSize) & m_picture.rect());
    const auto levels = m_keepColours->isChecked() ? PictureImport::Levels::Kept : PictureImport::Levels::Quantised;
    const auto clear =
        m_keepClearPixels->isChecked() ? PictureImport::ClearPixels::Kept : PictureImport::ClearPixels::Dropped;
    m_pixels = m_palette
        ? PictureImport::indexed(part, *m_palette, 0, m_colourCount, scale ? m_imageSize : QSize(), levels, clear)
        : QImage();
    const QImage shown = m_pixels.convertToFormat(QImage::Format_RGB32);
    m_preview->setPixmap(QPixmap::fromImage(shown.scaled(PreviewSize, Qt::KeepAspectRatio)));
}

} // namespace ImageEditor
