#include "app/dialogs/importimagedialog.h"

#include "app/dialogs/assetchooser.h"
#include "app/dialogs/depthchooser.h"
#include "editors/canvas/reductionbox.h"
#include "model/picturefile.h"
#include "model/plural.h"
#include "model/spritebank.h"
#include "pictures/machinecolours.h"
#include "ui/busy.h"
#include "ui/picturepreview.h"

#include <QCheckBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include <algorithm>
#include <utility>

namespace SpriteEditor {

namespace {

constexpr int FourBitColours = 16;
/// Pixels along the longer side of the preview's picture, which is remapped at every change.
constexpr int ThumbnailSide = 512;

/// A picture of few pixels that has the colours of a large one.
QImage thumbnailOf(const QImage &picture)
{
    if (std::max(picture.width(), picture.height()) <= ThumbnailSide)
        return picture;
    return picture.scaled(ThumbnailSide, ThumbnailSide, Qt::KeepAspectRatio, Qt::FastTransformation);
}

} // namespace

ImportImageDialog::ImportImageDialog(QWidget *parent)
    : CreationDialog(tr("Import Sprites"), tr("Make sprites of a picture"), parent)
    , m_remap(new QRadioButton(tr("Nearest colours of a &palette"), this))
    , m_slice(new QRadioButton(tr("N&ew palette, and every sprite once"), this))
    , m_palette(new AssetChooser(this))
    , m_keepColours(new QCheckBox(tr("&Keep the machine's colours"), this))
    , m_depth(new DepthChooser(this))
    , m_reduction(new ReductionBox(this))
    , m_after(new PicturePreview(this))
    , m_before(new PicturePreview(this))
    , m_summary(new QLabel(this))
{
    m_palette->setAccessibleName(tr("Palette"));
    form()->addRow(tr("Colours"), m_remap);
    form()->addRow(QString(), m_palette);
    form()->addRow(QString(), m_slice);
    m_keepColours->setToolTip(tr("Every colour of the picture is one that the Next has, and stays exactly that"));
    form()->addRow(QString(), m_keepColours);
    form()->addRow(tr("&Depth"), m_depth);
    form()->addRow(tr("&Fewer colours"), m_reduction);
    body()->addLayout(PicturePreview::sideBySide(m_before, m_after), 1);
    m_summary->setTextFormat(Qt::PlainText);
    m_summary->setWordWrap(true);
    body()->addWidget(m_summary);
    for (const QAbstractButton *button :
         {static_cast<QAbstractButton *>(m_slice), static_cast<QAbstractButton *>(m_keepColours)})
        connect(button, &QAbstractButton::toggled, this, &ImportImageDialog::refresh);
    for (const QComboBox *box : {static_cast<QComboBox *>(m_palette), static_cast<QComboBox *>(m_depth),
                                 static_cast<QComboBox *>(m_reduction)})
        connect(box, &QComboBox::currentIndexChanged, this, &ImportImageDialog::refresh);
    connect(this, &QDialog::finished, this, [this] {
        m_picture = {};
        m_reduced.reset();
    });
}

void ImportImageDialog::show(const Project &project, const QString &file)
{
    m_project = &project;
    m_file = file;
    {
        const Busy busy(parentWidget(), tr("Reading %1…").arg(QFileInfo(file).fileName()),
                        PictureFile::pixelCount(file));
        auto [image, refusal] = PictureFile::read(file);
        m_refusal = refusal;
        m_picture = {}; // until all else is set
        m_size = image.size();
        const bool canKeep = MachineColours::areIn(image);
        take(m_kept, canKeep ? MachineColours::kept(image) : QImage());
        take(m_quantised, image);
        m_keepColours->setEnabled(canKeep);
        m_keepColours->setChecked(canKeep);
        m_reduction->setReduction({});
        m_picture = std::move(image);
        m_before->setPicture(m_picture);
    }
    m_palette->offerPalettes(project);
    const bool hasPalettes = m_palette->count() > 0;
    m_remap->setEnabled(hasPalettes);
    (hasPalettes ? m_remap : m_slice)->setChecked(true);
    refresh();
    openWithName(QFileInfo(file).completeBaseName());
}

/// Takes the colours and a small picture: the large one is read again when it is imported.
void ImportImageDialog::take(Look &look, QImage image)
{
    look.thumbnail.setTranslucent(thumbnailOf(image));
    NxImage picture;
    picture.setTranslucent(std::move(image));
    look.colours = picture.colours();
    m_hasClearPixels = picture.hasClearPixels();
}

const ImportImageDialog::Look &ImportImageDialog::look() const
{
    return m_keepColours->isChecked() ? m_kept : m_quantised;
}

QSize ImportImageDialog::pieces() const
{
    return {m_size.width() / SpriteBank::SpriteSize, m_size.height() / SpriteBank::SpriteSize};
}

Palette *ImportImageDialog::chosenPalette() const
{
    return m_project && m_remap->isChecked() ? m_project->palette(m_palette->id()) : nullptr;
}

SpriteTransparency ImportImageDialog::transparency() const
{
    return {m_depth->depth()};
}

SpriteColours ImportImageDialog::placesOf(const QList<QRgb> &colours) const
{
    const Palette *palette = chosenPalette();
    if (!palette)
        return SpriteColours::own(colours, transparency());
    QList<QRgb> wanted = colours;
    if (m_keepColours->isChecked())
        std::transform(wanted.cbegin(), wanted.cend(), wanted.begin(), MachineColours::shown);
    return SpriteColours::nearest(wanted, *palette, transparency());
}

QImage ImportImageDialog::indexed()
{
    m_reduced.reset();
    const std::optional<Dithering> dithering = m_reduction->reduction();
    if (!dithering || m_picture.isNull())
        return placesOf(look().thumbnail.colours()).pixels(look().thumbnail);
    const Busy busy(parentWidget(), tr("Reducing %1…").arg(QFileInfo(m_file).fileName()),
                    qint64(m_size.width()) * m_size.height());
    m_reduced = ReducedPixels::of(m_picture,
                                  {.dithering = *dithering,
                                   .colourCount = transparency().pixelCount(),
                                   .clear = transparency().pixel(),
                                   .palette = chosenPalette()});
    return m_reduced->pixels;
}

void ImportImageDialog::refresh()
{
    m_palette->setEnabled(m_remap->isChecked());
    m_keepColours->setEnabled(!m_kept.colours.isEmpty() && !m_reduction->reduction());
    QImage shown = indexed();
    Palette shownColours; // as the Next has them
    if (const Palette *palette = chosenPalette()) {
        shownColours.copyColours(*palette);
    } else {
        const QList<QRgb> colours = shown.colorTable();
        for (qsizetype i = 0; i < colours.size(); ++i)
            shownColours.setColour(int(i), QColor::fromRgb(colours[i]), false);
    }
    if (!shown.isNull()) {
        shown.setColorTable(shownColours.colourTable());
        for (int index = transparency().pixel(); index < Palette::Size; index += transparency().pixelCount())
            shown.setColor(index, qRgba(0, 0, 0, 0));
    }
    m_after->setPicture(shown);
    m_summary->setText(summary());
    revalidate();
}

/// What there is, and what is lost of it.
QString ImportImageDialog::summary() const
{
    if (m_size.isEmpty())
        return tr("No picture");
    const qsizetype colours = look().colours.size();
    QString text = m_hasClearPixels ? tr("%1 × %2 sprites, colours: %3, and transparent pixels")
                                    : tr("%1 × %2 sprites, colours: %3");
    text = text.arg(pieces().width()).arg(pieces().height()).arg(colours) + u'\n';
    if (m_reduced)
        return text + ReductionBox::told(m_reduced->reduction);
    const int room = transparency().pixelCount() - 1;
    if (!chosenPalette() && colours > room)
        return text + tr("There is room for %1; the others take the nearest of these").arg(room);
    return text;
}

QString ImportImageDialog::problem() const
{
    const QString found = CreationDialog::problem();
    if (!found.isEmpty())
        return found;
    if (m_size.isEmpty())
        return m_refusal.isEmpty() ? tr("The file is not a picture that can be read") : m_refusal;
    const qint64 count = qint64(pieces().width()) * pieces().height();
    if (count == 0)
        return tr("The picture is smaller than a sprite, which has 16 × 16 pixels");
    if (count >= SpriteBank::MaxCount)
        return tr("The picture holds more sprites than fit into a bank");
    if (m_slice->isChecked() && m_project && m_project->paletteNames().contains(name()))
        return tr("There is a palette of this name already; please choose another name");
    return m_depth->depth() == Quenmora::FourBit && !m_reduced ? depthProblem() : QString();
}

/// What keeps the picture from being shown by 4-bit sprites: they use one group of 16 colours, one of which is
/// transparent.
QString ImportImageDialog::depthProblem() const
{
    if (!chosenPalette()) {
        return look().colours.size() >= FourBitColours
            ? tr("The picture has %n colours; 4-bit sprites show 15 beside the transparent one", nullptr,
                 plural(look().colours.size()))
            : QString();
    }
    const QList<int> indices = placesOf(look().colours).indices();
    const bool oneGroup = std::all_of(indices.cbegin(), indices.cend(), [&indices](int index) {
        return index / FourBitColours == indices.constFirst() / FourBitColours;
    });
    return oneGroup ? QString()
                    : tr("The colours lie in several groups of 16 of the palette; 4-bit sprites show one group");
}

void ImportImageDialog::submit()
{
    emit accepted({m_file, name(), m_depth->depth(), m_remap->isChecked() ? m_palette->id() : QUuid(),
                   m_keepColours->isChecked(), m_reduction->reduction()});
}

} // namespace SpriteEditor
