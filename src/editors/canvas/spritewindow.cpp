#include "editors/canvas/spritewindow.h"

#include "editors/canvas/canvas.h"
#include "editors/canvas/previews.h"
#include "editors/canvas/scrollcanvas.h"
#include "editors/canvas/spritelist.h"
#include "editors/palette/colourpalette.h"
#include "model/spriteanim.h"
#include "ui/sectionheader.h"
#include "ui/toolpalette.h"
#include "undo/numbering.h"
#include "undo/snapshotcommand.h"

#include <QAction>
#include <QFormLayout>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QSplitter>
#include <QUndoStack>
#include <QVBoxLayout>

#include <algorithm>

using namespace Quenmora::Ui;

namespace {

constexpr QSize SpriteSize(SpriteBank::SpriteSize, SpriteBank::SpriteSize);
constexpr int BankSize = 16;
constexpr int ListHeight = 150; // pixels, as long as the rest has no more than it needs

constexpr int TransparencyCommandId = 1004;
constexpr qint64 TransparencyMergeInterval = 400; // milliseconds: the steps of an arrow that is held are one

/// Scrolls what has no room, and wants at first as much as that wants, but no more than a height.
class Scroller final : public QScrollArea
{
public:
    explicit Scroller(QWidget *part, int mostHeight = QWIDGETSIZE_MAX) : m_mostHeight(mostHeight)
    {
        setFocusPolicy(Qt::NoFocus); // what is in it has the keyboard
        setWidgetResizable(true);
        setWidget(part);
    }

    QSize sizeHint() const override { return widget()->sizeHint().boundedTo({QWIDGETSIZE_MAX, m_mostHeight}); }

private:
    int m_mostHeight;
};

} // namespace

SpriteWindow::SpriteWindow(QWidget *parent)
    : DockWidget(tr("Sprite Editor"), tr("No sprites selected"), parent)
    , PixelEditor(SpriteSize, Qt::Horizontal, {RotateCW, RotateCCW})
    , m_colours(new ColourPalette)
    , m_transparency(new QSpinBox)
    , m_header(new SectionHeader(QString()))
    , m_list(new SpriteEditor::SpriteList)
    , m_onionSkin(addOption(this, QStringLiteral("onionSkin"), QStringLiteral(":/Onion"), tr("Onion Skin"),
                            tr("Show the sprite of the frame before faintly over this one")))
{
    setObjectName(QStringLiteral("SpriteEditor"));
    setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
    buildPage();
    connectParts();
    addPreviews();
    addMenuEntry(QStringLiteral("replaceColourInAllSprites"), QStringLiteral(":/ReplaceColour"),
                 tr("Replace Colour in All Sprites"), tr("Does that in all sprites of the bank"),
                 [this] { replaceColourInAllSprites(); });
    sayNextStep(tr("Draw the first sprite here; the last place of the list below adds another"),
                [this] { return m_sprites && isBlank(m_sprites->image()); });
    setSprites(nullptr);
}

void SpriteWindow::buildPage()
{
    canvas()->setMinimumHeight(8 * SpriteSize.height());
    auto *editor = new QWidget;
    auto *editorLayout = new QVBoxLayout(editor);
    editorLayout->setContentsMargins(0, 0, 0, 0);
    editorLayout->addLayout(toolRows());
    editorLayout->addWidget(new ScrollCanvas(canvas()), 1);
    editorLayout->addWidget(m_colours);
    m_transparency->setKeyboardTracking(false); // a number is one edit, not one for each digit
    m_transparency->setToolTip(tr("Pixels of this index are not drawn on the Next, whatever their colour"));
    auto *form = new QFormLayout;
    form->setRowWrapPolicy(QFormLayout::WrapLongRows); // as languages need it in a narrow dock
    form->addRow(tr("Transparent index"), m_transparency);
    editorLayout->addLayout(form);

    auto *list = new Scroller(m_list, ListHeight);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto *upper = new Scroller(editor);
    upper->setFrameShape(QFrame::NoFrame);

    auto *splitter = new QSplitter(Qt::Vertical);
    splitter->addWidget(upper);
    splitter->addWidget(SectionHeader::over(list, m_header));
    splitter->setStretchFactor(0, 3);
    splitter->setStretchFactor(1, 2);
    setContent(splitter);
}

void SpriteWindow::connectParts()
{
    connect(tools(), &ToolPalette::actionActivated, canvas(), &Canvas::setMode);
    connect(canvas(), &Canvas::imageChanged, this, &SpriteWindow::updateSpriteImage);
    connect(canvas(), &Canvas::edited, this, &SpriteWindow::pushEdit);
    connect(canvas(), &Canvas::foregroundPicked, m_colours, &ColourPalette::setPrimaryIndex);
    connect(canvas(), &Canvas::backgroundPicked, m_colours, &ColourPalette::setSecondaryIndex);
    connect(m_colours, &ColourPalette::primaryIndexChanged, canvas(), &Canvas::setInk);
    connect(m_colours, &ColourPalette::secondaryIndexChanged, canvas(), &Canvas::setPaper);
    connect(m_transparency, &QSpinBox::valueChanged, this, &SpriteWindow::changeTransparency);
    connectCanvas(content());

    using SpriteEditor::SpriteList;
    connect(m_list, &SpriteList::indexChanged, this, &SpriteWindow::changeSprite);
    connect(m_list, &SpriteList::addSprite, this,
            [this] { editStructure(tr("Add Sprite"), [](SpriteBank &bank) { bank.addSprite(true); }); });
    connect(m_list, &SpriteList::deleteRequested, this, [this](int index) {
        editStructure(tr("Delete Sprite"), [index](SpriteBank &bank) { bank.deleteSprite(index); });
    });
    connect(m_list, &SpriteList::clearRequested, this, [this](int index) {
        editStructure(tr("Clear Sprite"), [index](SpriteBank &bank) { bank.clearSprite(index); });
    });
    connect(m_list, &SpriteList::copySprite, this, [this](int source, int dest) {
        editStructure(tr("Copy Sprite"), [=](SpriteBank &bank) { bank.copySprite(source, dest); });
    });
    connect(m_list, &SpriteList::moveSprite, this, [this](int source, int dest) {
        editStructure(tr("Move Sprite"), [=](SpriteBank &bank) { bank.moveSprite(source, dest); });
    });
}

// ---- What is shown --------------------------------------------------------------------------

void SpriteWindow::setSprites(const QPointer<SpriteBank> &sprites)
{
    showStroke({});
    if (m_sprites)
        m_sprites->disconnect(this);
    m_sprites = sprites;
    m_index = 0;
    canvas()->setEnabled(sprites);
    m_list->setSprites(sprites);
    setActive(sprites);
    if (m_sprites) {
        const bool fourBit = m_sprites->depth() == Quenmora::FourBit;
        canvas()->setImageType(fourBit ? Offset16 : Full256);
        const int colours = fourBit ? BankSize : Palette::Size;
        m_colours->setRange(0, colours);
        canvas()->setPictureColours(0, colours);
        connect(m_sprites, &SpriteBank::imageChanged, this, [this](int index) {
            if (index == m_index && !m_writing)
                loadSprite();
        });
        connect(m_sprites, &SpriteBank::countChanged, this, &SpriteWindow::refresh);
        connect(m_sprites, &SpriteBank::restored, this, &SpriteWindow::refresh);
        connect(m_sprites, &SpriteBank::coloursChanged, this, &SpriteWindow::showTransparency);
        connect(m_sprites, &SpriteBank::shownColoursChanged, this, &SpriteWindow::showGhost);
        connect(m_sprites, &QObject::destroyed, this, [this] { setSprites(nullptr); });
    }
    refresh();
}

void SpriteWindow::setSpritePalette(Palette *palette)
{
    if (m_sprites)
        m_sprites->setPalette(palette);
    refresh();
}

void SpriteWindow::refresh()
{
    const QPointer<Palette> palette = m_sprites ? m_sprites->palette() : nullptr;
    canvas()->bindPalette(palette);
    m_colours->setPalette(palette);
    m_header->setText(tr("Sprites: %1").arg(m_sprites ? m_sprites->name() : QString()));
    if (!m_sprites)
        return;
    m_index = std::clamp(m_index, 0, m_sprites->count() - 1);
    m_list->setSelectedIndex(m_index);
    showTransparency();
    loadSprite();
}

void SpriteWindow::changeSprite(int index)
{
    m_index = index;
    refresh();
}

void SpriteWindow::loadSprite()
{
    load(m_sprites->spriteImage(m_index, false, false, false));
    showGhost();
}

void SpriteWindow::showTransparency()
{
    const SpriteTransparency clear = m_sprites->clearPixels();
    // a damaged project may have a bank all of whose pixels are drawn; a person cannot ask for it
    const bool none = clear.pixel() < 0;
    const QSignalBlocker blocker(m_transparency);
    m_transparency->setSpecialValueText(none ? tr("None") : QString());
    m_transparency->setRange(none ? -1 : 0, clear.pixelCount() - 1);
    m_transparency->setValue(clear.pixel());
    m_colours->setClearIndex(clear.pixel());
}

// ---- Previews -------------------------------------------------------------------------------

void SpriteWindow::addPreviews()
{
    connect(m_onionSkin, &QAction::toggled, this, &SpriteWindow::showGhost);
    offerPreviews(this,
                  {{tr("Animation"), [this](int frame) { return inMotion(frame); }},
                   {tr("Repeated"), [this](int) {
                        return PreviewWindow::Picture{Previews::seamless(canvas()->shownImage()), 0, {}};
                    }}});
}

QImage SpriteWindow::pictureOf(const AnimationFrame::Cell &cell) const
{
    return m_sprites->renderSprite(cell.index, cell.offset, cell.rotate, cell.flip, cell.mirror);
}

const Animation *SpriteWindow::animation() const
{
    QList<Animation *> animations;
    for (const QPointer<SpriteAnim> &animation : m_sprites->animations())
        animations.append(animation);
    return Previews::animationShowing(animations, m_index);
}

PreviewWindow::Picture SpriteWindow::inMotion(int frame) const
{
    const Animation *shown = m_sprites ? animation() : nullptr;
    if (!shown)
        return {{}, 0, tr("No animation shows this sprite")};
    const auto picture = [this](const AnimationFrame::Cell &cell) { return pictureOf(cell); };
    return {Previews::frame(*shown, frame, picture), Previews::interval(*shown), {}};
}

void SpriteWindow::showGhost()
{
    QImage ghost;
    if (m_sprites && m_onionSkin->isChecked()) {
        const auto picture = [this](const AnimationFrame::Cell &cell) { return pictureOf(cell); };
        if (const Animation *shown = animation())
            ghost = Previews::before(*shown, m_index, picture);
        else
            ghost = picture({.index = m_index - 1});
    }
    canvas()->setGhost(ghost);
}

// ---- Edits ----------------------------------------------------------------------------------

void SpriteWindow::showStroke(const QImage &pixels)
{
    const QScopedValueRollback writing(m_writing, true);
    if (m_strokeBank && (pixels.isNull() || m_strokeBank != m_sprites))
        m_strokeBank->showPainted(-1, {});
    m_strokeBank = pixels.isNull() ? nullptr : m_sprites;
    if (m_strokeBank)
        m_strokeBank->showPainted(m_index, pixels);
}

void SpriteWindow::updateSpriteImage()
{
    showStroke({});
    if (isLoading() || !m_sprites)
        return;
    const QScopedValueRollback writing(m_writing, true);
    m_sprites->setImage(m_index, canvas()->image());
}

void SpriteWindow::editStructure(const QString &text, const std::function<void(SpriteBank &)> &edit)
{
    if (!m_sprites)
        return;
    emit m_sprites->structureAboutToChange();
    edit(*m_sprites);
    emit m_sprites->structureChanged(text);
    refresh();
}

void SpriteWindow::replaceColourInAllSprites()
{
    editStructure(tr("Replace Colour"), [this](SpriteBank &bank) {
        for (int index = 0; index < bank.count(); ++index) {
            const QImage before = bank.spriteImage(index, false, false, false);
            const QImage after = withColourReplaced(before);
            if (!Layer2Image::haveSameIndices(before, after))
                bank.setImage(index, after);
        }
    });
}

void SpriteWindow::changeTransparency(int pixel)
{
    if (!m_sprites || pixel < 0 || pixel == m_sprites->clearPixels().pixel())
        return;
    const int before = m_sprites->transparency();
    m_sprites->changeTransparency(pixel);
    QUndoStack *stack = m_stackFor ? m_stackFor(m_sprites->id()) : nullptr;
    if (!stack)
        return;
    const auto restore = [bank = m_sprites](int index) {
        if (bank)
            bank->changeTransparency(index);
    };
    stack->push(new SnapshotCommand<int>(tr("Transparent Index"), before, pixel, restore, TransparencyCommandId,
                                         m_sprites->id(), TransparencyMergeInterval));
}

void SpriteWindow::pushEdit(const QString &text, const QImage &before, const QImage &after, PixelEditCommand::Kind kind)
{
    if (!m_sprites || !m_stackFor)
        return;
    const int name = Numbering::of(*m_sprites).nameAt(m_index); // the sprite may have another number later
    const auto apply = [window = QPointer(this), bank = m_sprites, name](const QImage &image) {
        if (window && bank)
            window->applyEdit(bank, Numbering::of(*bank).numberOf(name), image);
    };
    push(m_stackFor(m_sprites->id()), text, before, after, apply, mergeKey(m_sprites->id(), name), kind);
}

void SpriteWindow::applyEdit(const QPointer<SpriteBank> &bank, int index, const QImage &image)
{
    if (!bank || index < 0 || index >= bank->count())
        return;
    if (bank == m_sprites && index == m_index)
        canvas()->setImage(image);
    else
        bank->setImage(index, image);
}

// ---- Keys -------------------------------------------------------------------------------------

bool SpriteWindow::event(QEvent *event)
{
    scrollByShortcutOverride(event);
    return DockWidget::event(event);
}
