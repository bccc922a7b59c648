#include "editors/canvas/imageimportdialog.h"

#include "editors/canvas/reductionbox.h"
#include "model/nximage.h"
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
    body()->addLayout(PicturePreview::sideBySide(m_before, m_after), 1);
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
    m_summary->setWordWrap(true);
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

ImageImport ImportDialog::choices() const
{
    const auto chosen = [](const QCheckBox *box) { return box->isEnabled() && box->isChecked(); };
    return {.scale = m_scale->isChecked(),
            .keepColours = m_keepColours->isChecked(),
            .keepClearPixels = chosen(m_keepClearPixels),
            .newPalette = chosen(m_newPalette),
            .reduction = m_reduction->reduction()};
}

QString ImportDialog::problem() const
{
    return m_result.pixels.isNull() ? tr("The picture cannot be used") : QString();
}

void ImportDialog::submit()
{
    const ImageImport import = choices();
    if (import.newPalette) {
        const bool hasClear = m_result.reduced->reduction.hasClearPixels;
        emit importedWithPalette(m_result.pixels, hasClear ? import.clearEntry(nullptr, m_colourCount) : -1);
    } else {
        emit imported(m_result.pixels);
    }
}

void ImportDialog::updatePreview()
{
    const int clear = choices().clearEntry(m_palette, m_colourCount);
    if (const bool can = m_hasClearPixels && clear >= 0; can != m_keepClearPixels->isEnabled()) {
        const QSignalBlocker blocker(m_keepClearPixels);
        m_keepClearPixels->setEnabled(can);
        m_keepClearPixels->setChecked(can);
    }
    if (choices().newPalette && !m_reduction->reduction()) {
        const QSignalBlocker blocker(m_reduction); // a palette for the picture is one for the whole of it
        m_reduction->setReduction(Dithering::None);
    }
    m_result = m_palette ? choices().convert(m_picture, *m_palette, m_imageSize, m_colourCount) : ImageImport::Result();
    QImage shown = m_result.pixels;
    const auto &reduced = m_result.reduced;
    if (reduced && reduced->reduction.hasClearPixels && clear >= 0)
        shown.setColor(clear, qRgba(0, 0, 0, 0));
    m_after->setPicture(shown);
    m_summary->setText(reduced ? ReductionBox::told(reduced->reduction) : QString());
}

} // namespace ImageEditor
