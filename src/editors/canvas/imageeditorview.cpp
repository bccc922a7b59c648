#include "editors/canvas/imageeditorview.h"

#include "editors/canvas/canvas.h"
#include "editors/canvas/imageeditortoolbar.h"
#include "editors/canvas/imageimportdialog.h"
#include "editors/canvas/paintoptionsbar.h"
#include "editors/canvas/scrollcanvas.h"
#include "editors/palette/colourpalette.h"
#include "model/picturefile.h"
#include "model/project.h"
#include "model/rawfile.h"
#include "model/writeproblem.h"
#include "ui/assettitle.h"
#include "ui/replacing.h"
#include "ui/toolpalette.h"
#include "undo/paletteorder.h"
#include "undo/snapshotcommand.h"

#include <QBuffer>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>

using namespace Quenmora::Ui;

namespace ImageEditor {

namespace {

constexpr int UsualZoom = 3;
constexpr int FewColours = 16;

/// The name, with a number where there is one like it.
QString freeName(const QString &name, const QStringList &taken)
{
    QString free = name;
    for (int number = 2; taken.contains(free); ++number)
        free = QStringLiteral("%1 %2").arg(name).arg(number);
    return free;
}

} // namespace

View::View(QWidget *parent)
    : QWidget(parent)
    , PixelEditor(QSize(1, 1), Qt::Vertical, {Open, Save})
    , m_colours(new ColourPalette) // takes its place in the order of Tab with the layout
{
    canvas()->setZoomLevel(UsualZoom);
    buildPage();
    connectParts();
    sayNextStep(tr("Paint here, or bring in a picture with Open among the tools"),
                [this] { return canvas()->isEnabled() && isBlank(canvas()->image()); });
    setImage(nullptr);
}

void View::buildPage()
{
    auto *side = new QVBoxLayout;
    side->addWidget(tools(), 0, Qt::AlignTop);
    side->addStretch();
    auto *middle = new QVBoxLayout;
    middle->addWidget(new ScrollCanvas(canvas()), 1);
    middle->addWidget(m_colours);
    auto *parts = new QHBoxLayout;
    parts->addLayout(middle, 1);
    parts->addLayout(side);
    auto *layout = new QVBoxLayout(this);
    auto *top = new QHBoxLayout;
    top->addWidget(optionsBar(), 1);
    top->addWidget(new ToolBar(this));
    layout->addLayout(top);
    layout->addLayout(parts, 1);
    setFocusProxy(canvas());
}

void View::connectParts()
{
    connect(tools(), &ToolPalette::actionActivated, this, &View::changeMode);
    connect(canvas(), &Canvas::imageChanged, this, &View::writeBack);
    connect(canvas(), &Canvas::edited, this, &View::pushEdit);
    connect(canvas(), &Canvas::foregroundPicked, this, &View::setForeIndex);
    connect(canvas(), &Canvas::backgroundPicked, this, &View::setBackIndex);
    connect(m_colours, &ColourPalette::primaryIndexChanged, this, &View::setForeIndex);
    connect(m_colours, &ColourPalette::secondaryIndexChanged, this, &View::setBackIndex);
    connectCanvas(this);
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
    if (m_image)
        connect(m_image, &QObject::destroyed, this, [this] { setImage(nullptr); });
    canvas()->setEnabled(image);
    m_colours->setRange(0, colourCount());
    canvas()->setPictureColours(0, colourCount());
    setPalette(image ? image->palette() : nullptr);
    load(image ? image->image() : QImage());
}

void View::setUndoStack(QUndoStack *stack)
{
    if (m_undoStack)
        m_undoStack->disconnect(this);
    m_undoStack = stack;
    if (!stack)
        return;
    connect(stack, &QUndoStack::indexChanged, this, [this] {
        // undo of an edit that was made in an editor which was closed since
        if (m_image && m_image->palette() != canvas()->palette()) {
            setPalette(m_image->palette());
            emit paletteSwapped(m_image->palette());
        }
        if (m_image && !Layer2Image::haveSameIndices(m_image->image(), canvas()->image()))
            load(m_image->image());
    });
}

void View::setPixels(const QImage &pixels)
{
    canvas()->setEnabled(true);
    load(pixels);
}

QImage View::pixels() const
{
    return canvas()->image();
}

void View::setPalette(const QPointer<Palette> &palette)
{
    canvas()->bindPalette(palette);
    m_colours->setPalette(palette);
    disconnect(m_reordered);
    if (!palette)
        return;
    m_reordered = connect(&PaletteHistory::of(*palette), &PaletteHistory::reordered, this, [this](const auto &order) {
        load(m_image ? m_image->image() : order.in(canvas()->image()));
    });
}

void View::setForeIndex(int index)
{
    canvas()->setInk(index);
    m_colours->setPrimaryIndex(index);
}

void View::setBackIndex(int index)
{
    canvas()->setPaper(index);
    m_colours->setSecondaryIndex(index);
}

void View::swapPalette(const QPointer<Palette> &palette)
{
    if (!m_image || !palette || m_image->palette() == palette)
        return;
    const QPointer<Palette> before = m_image->palette();
    m_image->setPalette(palette);
    setPalette(palette);
    emit paletteSwapped(palette);
    if (!m_undoStack)
        return;
    const auto bind = [image = m_image, hadNone = !before](const QPointer<Palette> &other) {
        if (image && (other || hadNone)) // else the palette was deleted since
            image->setPalette(other);
    };
    m_undoStack->push(
        new SnapshotCommand<QPointer<Palette>>(tr("Swap Palette"), before, palette, bind, -1, QVariant(), -1));
}

// ---- Edits ----------------------------------------------------------------------------------

void View::writeBack()
{
    if (isLoading())
        return;
    if (m_image)
        m_image->setImage(canvas()->image());
    emit imageChanged(canvas()->image());
}

void View::pushEdit(const QString &text, const QImage &before, const QImage &after, PixelEditCommand::Kind kind)
{
    const auto apply = [view = QPointer(this), image = m_image, isAsset = bool(m_image)](const QImage &pixels) {
        if (isAsset && !image)
            return; // deleted since
        if (view && view->m_image == image)
            view->canvas()->setImage(pixels);
        else if (image)
            image->setImage(pixels);
    };
    push(m_undoStack, text, before, after, apply, QVariant::fromValue(m_image), kind);
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
        canvas()->setMode(action, checked);
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
    const PictureFile picture = PictureFile::read(fileName);
    if (picture.image.isNull()) {
        emit error(picture.failure());
        return;
    }
    if (!m_importDialog) {
        m_importDialog = new ImportDialog(this);
        connect(m_importDialog, &ImportDialog::imported, this, &View::place);
        connect(m_importDialog, &ImportDialog::importedWithPalette, this, &View::placeWithPalette);
        connect(m_importDialog, &QDialog::accepted, this,
                [this] { emit imported(m_importedFile, m_importDialog->choices()); });
    }
    m_importedFile = fileName;
    m_importDialog->setOffersNewPalette(project());
    m_importDialog->show(picture.image, canvas()->palette(), canvas()->image().size(), colourCount());
}

void View::place(const QImage &pixels)
{
    canvas()->applyEdit(tr("Import Image"), PixelEditCommand::None,
                        [&pixels](Layer2Image &layer) { layer.paste(pixels, QPoint()); });
}

void View::placeWithPalette(const QImage &pixels, int transparent)
{
    Project *project = this->project();
    if (!project)
        return;
    Palette words;
    for (int i = 0; i < Palette::Size; ++i)
        words.setColour(i, QColor::fromRgb(pixels.color(i)), false);
    const QPointer<Palette> palette = project->createPalette(
        CreateAction::Blank, freeName(QFileInfo(m_importedFile).completeBaseName(), project->paletteNames()));
    palette->copyColours(words);
    palette->setTransparencyIndex(transparent);
    if (m_undoStack)
        m_undoStack->beginMacro(tr("Import Image"));
    swapPalette(palette);
    place(pixels);
    if (m_undoStack)
        m_undoStack->endMacro();
}

Project *View::project() const
{
    return m_image ? qobject_cast<Project *>(m_image->parent()) : nullptr;
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
    nameInTitleBar(*m_exportFile, name());
    m_exportFile->open();
}

void View::exportImage(const QString &fileName)
{
    // a name that nobody chose in the dialog was not completed by it either
    if (m_exportFile && !mayReplaceChosenFile(*m_exportFile))
        return;
    QBuffer file;
    const bool isPicture = canvas()->image().save(&file, QFileInfo(fileName).suffix().toLatin1().constData());
    if (isPicture && RawFile::write(fileName, file.data()))
        emit exported(name(), fileName);
    else
        emit error(
            tr("There was a problem exporting data") + u'\n'
            + (isPicture ? writeProblem(fileName) : tr("Pictures are written as .png, .xpm, .jpg or .bmp files")));
}

QString View::name() const
{
    return m_image ? m_image->name() : tr("Scratch Image");
}

// ---- Keys -------------------------------------------------------------------------------------

bool View::event(QEvent *event)
{
    scrollByShortcutOverride(event);
    return QWidget::event(event);
}

} // namespace ImageEditor
