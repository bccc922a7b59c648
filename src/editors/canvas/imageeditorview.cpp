#include "editors/canvas/imageeditorview.h"

#include "editors/canvas/canvas.h"
#include "editors/canvas/imageeditortoolbar.h"
#include "editors/canvas/imageimportdialog.h"
#include "editors/canvas/pixelediting.h"
#include "editors/canvas/scrollcanvas.h"
#include "editors/palette/colourpalette.h"
#include "model/nximage.h"
#include "ui/toolpalette.h"

#include <QFileDialog>
#include <QHBoxLayout>
#include <QImageReader>
#include <QScopedValueRollback>

using namespace Quenmora::Ui;

namespace ImageEditor {

namespace {

constexpr int UsualZoom = 3;
constexpr int FewColours = 16;

} // namespace

View::View(QWidget *parent)
    : QWidget(parent)
    , m_canvas(new Canvas(QSize(1, 1)))
    , m_scroller(new ScrollCanvas(m_canvas, this))
    , m_tools(new ToolPalette(Qt::Vertical, this))
    , m_colours(new ColourPalette(this))
{
    PixelEditing::addTools(m_tools, {Open, Save});
    m_canvas->setZoomLevel(UsualZoom);
    buildPage();
    connectParts();
    setImage(nullptr);
}

void View::buildPage()
{
    auto *side = new QVBoxLayout;
    side->addWidget(m_tools, 0, Qt::AlignTop);
    side->addStretch();
    auto *middle = new QVBoxLayout;
    middle->addWidget(m_scroller, 1);
    middle->addWidget(m_colours);
    auto *parts = new QHBoxLayout;
    parts->addLayout(middle, 1);
    parts->addLayout(side);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(new ToolBar(this));
    layout->addLayout(parts, 1);
    setFocusProxy(m_canvas);
}

void View::connectParts()
{
    connect(m_tools, &ToolPalette::actionActivated, this, &View::changeMode);
    PixelEditing::connectTools(m_tools, m_canvas);
    connect(m_canvas, &Canvas::imageChanged, this, &View::writeBack);
    connect(m_canvas, &Canvas::edited, this, &View::pushEdit);
    connect(m_canvas, &Canvas::foregroundPicked, this, &View::setForeIndex);
    connect(m_canvas, &Canvas::backgroundPicked, this, &View::setBackIndex);
    connect(m_canvas, &Canvas::pixelHovered, this,
            [this](QPoint pixel, int index) { PixelEditing::showPixel(this, pixel, index, m_canvas->palette()); });
    connect(m_colours, &ColourPalette::primaryIndexChanged, this, &View::setForeIndex);
    connect(m_colours, &ColourPalette::secondaryIndexChanged, this, &View::setBackIndex);
    PixelEditing::addSwapAction(this, m_canvas);
}

// ---- What is shown --------------------------------------------------------------------------

int View::colourCount() const
{
    return m_image && m_image->mode() == Quenmora::Layer2_640x256 ? FewColours : Palette::Size;
}

void View::setImage(const QPointer<Image> &image)
{
    if (m_image)
        m_image->disconnect(this);
    m_image = image;
    if (m_image) {
        connect(m_image, &QObject::destroyed, this, [this] { setImage(nullptr); });
        connect(m_image, &Image::imageChanged, this, [this] {
            if (!m_writing) // undo of an edit that was made in an editor which was closed since
                load(m_image->image());
        });
    }
    m_canvas->setEnabled(image);
    m_colours->setRange(0, colourCount());
    setPalette(image ? image->palette() : nullptr);
    load(image ? image->image() : QImage());
}

void View::setPixels(const QImage &pixels)
{
    m_canvas->setEnabled(true);
    load(pixels);
}

QImage View::pixels() const
{
    return m_canvas->image();
}

void View::setPalette(const QPointer<Palette> &palette)
{
    m_canvas->bindPalette(palette);
    m_colours->setPalette(palette);
}

void View::load(const QImage &pixels)
{
    const QScopedValueRollback loading(m_loading, true);
    m_canvas->setImage(pixels);
}

void View::setForeIndex(int index)
{
    m_canvas->setInk(index);
    m_colours->setPrimaryIndex(index);
}

void View::setBackIndex(int index)
{
    m_canvas->setPaper(index);
    m_colours->setSecondaryIndex(index);
}

// ---- Edits ----------------------------------------------------------------------------------

void View::writeBack()
{
    if (m_loading)
        return;
    if (m_image) {
        const QScopedValueRollback writing(m_writing, true);
        m_image->setImage(m_canvas->image());
    }
    emit imageChanged(m_canvas->image());
}

void View::pushEdit(const QString &text, const QImage &before, const QImage &after, PixelEditCommand::Kind kind)
{
    const auto apply = [view = QPointer(this), image = m_image, isAsset = bool(m_image)](const QImage &pixels) {
        if (isAsset && !image)
            return; // deleted since
        if (view && view->m_image == image)
            view->m_canvas->setImage(pixels);
        else if (image)
            image->setImage(pixels);
    };
    PixelEditing::push(m_undoStack, text, before, after, apply, QVariant::fromValue(m_image), kind);
}

void View::changeMode(ToolButton action, bool checked)
{
    switch (action) {
    case Open:
        openImportFile();
        break;
    case Save:
        openExportFile();
        break;
    default:
        m_canvas->setMode(action, checked);
        break;
    }
}

// ---- Files ----------------------------------------------------------------------------------

void View::openImportFile()
{
    if (!m_importFile) {
        m_importFile = new QFileDialog(this, tr("Import Image"));
        m_importFile->setFileMode(QFileDialog::ExistingFile);
        m_importFile->setNameFilter(tr("Images (*.png *.bmp *.gif *.jpg *.jpeg *.pbm *.pgm *.ppm *.xbm *.xpm)"));
        connect(m_importFile, &QFileDialog::fileSelected, this, &View::importPicture);
    }
    m_importFile->open();
}

void View::importPicture(const QString &fileName)
{
    QImageReader reader(fileName);
    const QImage picture = NxImage::accepts(reader.size()) ? reader.read() : QImage();
    if (picture.isNull()) {
        emit error(tr("Could not read the image file"));
        return;
    }
    if (!m_importDialog) {
        m_importDialog = new ImportDialog(this);
        connect(m_importDialog, &ImportDialog::imported, this, &View::place);
    }
    m_importDialog->show(picture, m_canvas->palette(), m_canvas->image().size(), colourCount());
}

void View::place(const QImage &pixels)
{
    m_canvas->applyEdit(tr("Import Image"), PixelEditCommand::None,
                        [&pixels](Layer2Image &layer) { layer.paste(pixels, QPoint()); });
}

void View::openExportFile()
{
    if (!m_exportFile) {
        m_exportFile = new QFileDialog(this, tr("Export Image"));
        m_exportFile->setAcceptMode(QFileDialog::AcceptSave);
        m_exportFile->setNameFilter(tr("Images (*.png *.xpm *.jpg *.bmp)"));
        m_exportFile->setDefaultSuffix(QStringLiteral(".png"));
        connect(m_exportFile, &QFileDialog::fileSelected, this, &View::exportImage);
    }
    m_exportFile->open();
}

void View::exportImage(const QString &name)
{
    if (!m_canvas->image().save(name))
        emit error(tr("There was a problem exporting data"));
}

// ---- Edit menu and keys ---------------------------------------------------------------------

void View::cut()
{
    m_canvas->cut();
}

void View::copy()
{
    m_canvas->copy();
}

void View::paste()
{
    m_canvas->paste();
}

void View::selectAll()
{
    m_canvas->selectAll();
}

void View::selectNone()
{
    m_canvas->selectNone();
}

bool View::event(QEvent *event)
{
    PixelEditing::scrollByShortcutOverride(m_canvas, event);
    return QWidget::event(event);
}

} // namespace ImageEditor
