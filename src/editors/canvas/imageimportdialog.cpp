#include "editors/canvas/imageimportdialog.h"

#include "editors/canvas/pictureimport.h"
#include "editors/canvas/reductionbox.h"
#include "model/nximage.h"
#include "model/spritetransparency.h"
#include "pictures/machinecolours.h"
#include "ui/picturepreview.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>

namespace ImageEditor {

ImportDialog::ImportDialog(QWidget *parent)
    : DialogBase(tr("Import Image"), parent)
    , m_before(new PicturePreview(this))
    , m_after(new PicturePreview(this))
    , m_size(new QLabel(this))
    , m_summary(new QLabel(this))
    , m_scale(new QCheckBox(tr("Scale to fill the image"), this))
    , m_keepColours(new QCheckBox(tr("Keep the machine's colours"), this))
    , m_keepClearPixels(new QCheckBox(tr("Keep transparent pixels"), this))
    , m_newPalette(new QCheckBox(tr("New palette of the picture's colours"), this))
    , m_reduction(new ReductionBox(this))
{
    setHeader(tr("Import a picture"));
    auto *pictures = new QHBoxLayout;
    for (const auto &[text, picture] : {std::pair(tr("Before"), m_before), {tr("After"), m_after}}) {
        auto *column = new QVBoxLayout;
        column->addWidget(new QLabel(text));
        column->addWidget(picture, 1);
        picture->setAccessibleName(text);
        picture->setMinimumSize(240, 192);
        pictures->addLayout(column, 1);
    }
    body()->addLayout(pictures, 1);
    body()->addWidget(m_size, 0, Qt::AlignHCenter);
    body()->addWidget(m_scale);
    m_keepColours->setToolTip(
        tr("Every colour of the picture is one that the Next has: those that the palette has stay "
           "exactly that, and scaling mixes no new ones"));
    body()->addWidget(m_keepColours);
    m_keepClearPixels->setToolTip(tr("They get the transparent entry of the palette, and no colour does"));
    body()->addWidget(m_keepClearPixels);
    m_newPalette->setToolTip(tr("The image is shown with it from now on; the palette that it had stays as it is"));
    body()->addWidget(m_newPalette);
    auto *reduction = new QHBoxLayout;
    auto *fewer = new QLabel(tr("&Fewer colours"));
    fewer->setBuddy(m_reduction);
    reduction->addWidget(fewer);
    reduction->addWidget(m_reduction, 1);
    body()->addLayout(reduction);
    m_summary->setTextFormat(Qt::PlainText);
    body()->addWidget(m_summary);
    for (const QCheckBox *box : {m_scale, m_keepColours, m_keepClearPixels, m_newPalette})
        connect(box, &QCheckBox::toggled, this, &ImportDialog::updatePreview);
    connect(m_reduction, &QComboBox::currentIndexChanged, this, &ImportDialog::updatePreview);
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
    const QSignalBlocker blockers[] = {QSignalBlocker(m_scale), QSignalBlocker(m_keepColours),
                                       QSignalBlocker(m_keepClearPixels), QSignalBlocker(m_newPalette),
                                       QSignalBlocker(m_reduction)};
    m_scale->setChecked(false);
    m_scale->setEnabled(picture.size() != imageSize);
    const bool canKeep = MachineColours::areIn(picture);
    m_keepColours->setEnabled(canKeep);
    m_keepColours->setChecked(canKeep);
    NxImage translucent;
    translucent.setTranslucent(picture);
    m_hasClearPixels = translucent.hasClearPixels();
    m_newPalette->setEnabled(m_offersNewPalette);
    m_newPalette->setChecked(false);
    m_keepClearPixels->setEnabled(false); // until it is known whether they can be
    m_keepClearPixels->setChecked(false);
    m_reduction->setReduction({});
    m_before->setPicture(picture);
    updatePreview();
    DialogBase::open();
}

/// Of the palette that the image has, or will have; -1 for none among the colours that it shows.
int ImportDialog::transparentEntry() const
{
    if (takesNewPalette())
        return SpriteTransparency{m_colourCount == Palette::Size ? Quenmora::EightBit : Quenmora::FourBit}.pixel();
    const int transparent = m_palette ? m_palette->transparencyIndex() : -1;
    return transparent < m_colourCount ? transparent : -1;
}

bool ImportDialog::takesNewPalette() const
{
    return m_newPalette->isEnabled() && m_newPalette->isChecked();
}

QString ImportDialog::problem() const
{
    return m_pixels.isNull() ? tr("The picture cannot be used") : QString();
}

void ImportDialog::submit()
{
    if (takesNewPalette())
        emit importedWithPalette(m_pixels, m_reduced->reduction.hasClearPixels ? transparentEntry() : -1);
    else
        emit imported(m_pixels);
}

void ImportDialog::updatePreview()
{
    if (const bool can = m_hasClearPixels && transparentEntry() >= 0; can != m_keepClearPixels->isEnabled()) {
        const QSignalBlocker blocker(m_keepClearPixels);
        m_keepClearPixels->setEnabled(can);
        m_keepClearPixels->setChecked(can);
    }
    if (takesNewPalette() && !m_reduction->reduction()) {
        const QSignalBlocker blocker(m_reduction); // a palette for the picture is one for the whole of it
        m_reduction->setReduction(Dithering::None);
    }
    convert();
    QImage shown = m_pixels;
    if (const int clear = transparentEntry(); m_reduced && m_reduced->reduction.hasClearPixels && clear >= 0)
        shown.setColor(clear, qRgba(0, 0, 0, 0));
    m_after->setPicture(shown);
    m_summary->setText(m_reduced ? ReductionBox::told(m_reduced->reduction) : QString());
}

void ImportDialog::convert()
{
    // Only what lies inside the image is converted.
    const bool scale = m_scale->isChecked();
    const QImage part = scale ? m_picture : m_picture.copy(QRect(QPoint(), m_imageSize) & m_picture.rect());
    const bool keepClear = m_keepClearPixels->isEnabled() && m_keepClearPixels->isChecked();
    m_pixels = {};
    m_reduced.reset();
    if (!m_palette)
        return;
    const std::optional<Dithering> dithering = m_reduction->reduction();
    if (!dithering) {
        const auto levels = m_keepColours->isChecked() ? PictureImport::Levels::Kept : PictureImport::Levels::Quantised;
        const auto clear = keepClear ? PictureImport::ClearPixels::Kept : PictureImport::ClearPixels::Dropped;
        m_pixels =
            PictureImport::indexed(part, *m_palette, 0, m_colourCount, scale ? m_imageSize : QSize(), levels, clear);
        return;
    }
    const auto mode = m_keepColours->isChecked() ? Qt::FastTransformation : Qt::SmoothTransformation;
    const QImage scaled = scale ? part.scaled(m_imageSize, Qt::IgnoreAspectRatio, mode) : part;
    m_reduced = ReducedPixels::of(scaled,
                                  {.dithering = *dithering,
                                   .colourCount = m_colourCount,
                                   .clear = transparentEntry(),
                                   .palette = takesNewPalette() ? nullptr : m_palette.data(),
                                   .anyGroup = false,
                                   .keepClearPixels = keepClear});
    m_pixels = m_reduced->pixels;
}

} // namespace ImageEditor
