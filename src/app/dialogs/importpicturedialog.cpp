#include "app/dialogs/importpicturedialog.h"

#include "ui/busy.h"
#include "ui/picturepreview.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QLocale>
#include <QSignalBlocker>

ImportPictureDialog::ImportPictureDialog(QWidget *parent)
    : DialogBase(tr("Import Picture"), parent)
    , m_keepColours(new QCheckBox(tr("&Keep the machine's colours"), this))
    , m_keepClearPixels(new QCheckBox(tr("Keep &transparent pixels"), this))
    , m_together(new QCheckBox(tr("&Find colours and tiles for the whole picture"), this))
    , m_dithering(new QComboBox(this))
    , m_before(new PicturePreview(this))
    , m_after(new PicturePreview(this))
    , m_summary(new QLabel(this))
{
    setHeader(tr("Make tiles and a map of a picture"));
    m_keepColours->setToolTip(tr("Every colour of the picture is one that the Next has, and stays exactly that"));
    m_keepClearPixels->setToolTip(
        tr("They get index %1 of their tiles, which the map does not draw").arg(TileReduction::ClearPixel));
    m_together->setToolTip(
        tr("Groups of 16 colours that suit all tiles as well as they can, and at most %1 tiles; else "
           "tiles are served as they come, and who comes last gets what is left")
            .arg(TileReduction::MostTiles));
    m_dithering->addItem(tr("None"), int(Dithering::None));
    m_dithering->addItem(tr("Ordered pattern"), int(Dithering::Ordered));
    m_dithering->addItem(tr("Error diffusion"), int(Dithering::Diffusion));
    for (QCheckBox *box : {m_keepColours, m_keepClearPixels, m_together}) {
        form()->addRow(box);
        connect(box, &QCheckBox::toggled, this, &ImportPictureDialog::refresh);
    }
    form()->addRow(tr("&Dithering"), m_dithering);
    connect(m_dithering, &QComboBox::currentIndexChanged, this, &ImportPictureDialog::refresh);
    body()->addLayout(PicturePreview::sideBySide(m_before, m_after), 1);
    connect(this, &QDialog::rejected, this, &ImportPictureDialog::forget);
    m_summary->setTextFormat(Qt::PlainText);
    body()->addWidget(m_summary);
}

void ImportPictureDialog::show(const QString &file, const PictureLoss &loss)
{
    m_file = file;
    m_loss = loss;
    const bool lossy = loss.lossyTiles > 0 || loss.tiles > TileReduction::MostTiles || loss.hasManyColours;
    {
        const QSignalBlocker blockers[] = {QSignalBlocker(m_keepColours), QSignalBlocker(m_keepClearPixels),
                                           QSignalBlocker(m_together), QSignalBlocker(m_dithering)};
        for (const auto &[box, applies] :
             {std::pair(m_keepColours, loss.isMachines), {m_keepClearPixels, loss.losesClearPixels}}) {
            box->setEnabled(applies);
            box->setChecked(applies);
        }
        m_together->setChecked(lossy);
        // what was drawn pixel by pixel is not to be speckled
        const Dithering usual = lossy && !loss.isMachines ? Dithering::Ordered : Dithering::None;
        m_dithering->setCurrentIndex(m_dithering->findData(int(usual)));
    }
    m_before->setPicture(loss.picture);
    refresh();
    open();
}

bool ImportPictureDialog::reduces() const
{
    return m_keepColours->isChecked() || m_keepClearPixels->isChecked() || m_together->isChecked();
}

void ImportPictureDialog::refresh()
{
    m_dithering->setEnabled(m_together->isChecked());
    // whatever is found for the whole picture keeps them
    const bool keepsAnyway = m_together->isChecked() || m_keepClearPixels->isChecked();
    m_keepColours->setEnabled(m_loss.isMachines && !keepsAnyway);
    if (m_loss.isMachines && keepsAnyway) {
        const QSignalBlocker blocker(m_keepColours);
        m_keepColours->setChecked(true);
    }
    m_reduction.reset();
    if (reduces()) {
        const Busy busy(parentWidget(), tr("Reducing %1…").arg(QFileInfo(m_file).fileName()));
        const auto dithering = Dithering(m_dithering->currentData().toInt());
        m_reduction = TileReduction::of(m_loss.picture,
                                        {.dithering = m_together->isChecked() ? dithering : Dithering::None,
                                         .keepClearPixels = m_keepClearPixels->isChecked()});
    }
    m_after->setPicture(m_reduction ? m_reduction->shown() : m_loss.shown);
    m_summary->setText(summary());
    revalidate();
}

QString ImportPictureDialog::summary() const
{
    const QLocale locale;
    const auto number = [&locale](qint64 value) { return locale.toString(value); };
    if (!m_reduction) {
        return tr("Tiles: %1\nTiles that lose colours: %2").arg(number(m_loss.tiles), number(m_loss.lossyTiles))
            + u'\n';
    }
    const TileReduction &reduction = *m_reduction;
    QString text = tr("Tiles: %1, for %2 different ones\nColours: %3, for %4 of the picture; groups: %5")
                       .arg(number(qint64(reduction.tiles.size())), number(reduction.tilesBefore),
                            number(reduction.colours), number(reduction.coloursBefore), number(reduction.groupCount))
        + u'\n';
    if (reduction.mergedCells == 0 && reduction.lossyCells == 0) {
        return text
            + (m_loss.isMachines ? tr("Nothing is lost")
                                 : tr("Nothing is lost but shades between the colours that the machine has"));
    }
    text +=
        tr("Of %1 cells, %2 lose colours and %3 show a tile that is like theirs")
            .arg(number(qint64(reduction.cells.size())), number(reduction.lossyCells), number(reduction.mergedCells));
    if (m_dithering->isEnabled() && m_dithering->currentData().toInt() != int(Dithering::None))
        return text; // pixels that differ are what dithering is
    return text + tr("; mean error: %1 levels").arg(locale.toString(reduction.error, 'f', 2));
}

QString ImportPictureDialog::problem() const
{
    if (m_reduction || m_loss.tiles <= TileReduction::MostTiles)
        return {};
    return tr("The picture has %n different tiles, and a tile set has room for %1", nullptr, m_loss.tiles)
        .arg(TileReduction::MostTiles);
}

/// A large picture is not kept while nobody looks at it.
void ImportPictureDialog::forget()
{
    m_loss = {};
    m_reduction.reset();
}

void ImportPictureDialog::submit()
{
    if (m_reduction)
        emit accepted(m_file, *m_reduction);
    else
        emit unreduced(m_file, m_loss);
    forget();
}
