#include "editors/canvas/spritelist.h"

#include "editors/canvas/canvasclipboard.h"
#include "editors/common/dragdata.h"
#include "model/picturefile.h"
#include "ui/commands.h"
#include "ui/svgiconengine.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int Magnification = 3;
constexpr int Cell = Magnification * SpriteBank::SpriteSize;
constexpr QSize SpriteSize(SpriteBank::SpriteSize, SpriteBank::SpriteSize);

/// The picture on the clipboard, a canvas's before any other program's; null when there is none.
QImage clipboardImage()
{
    const QMimeData *mimeData = QGuiApplication::clipboard()->mimeData();
    const QImage ours = CanvasClipboardContent::fromMimeData(mimeData).image;
    if (!ours.isNull())
        return ours;
    return PictureFile::of(mimeData);
}

} // namespace

namespace SpriteEditor {

SpriteList::SpriteList(QWidget *parent) : CellGrid(SpriteDrag::mimeType(), tr("Sprite"), parent)
{
    setAccessibleName(tr("Sprites"));
    const auto addRequest = [this](const char *name, const QString &text, void (SpriteList::*request)(int)) {
        QAction *action = contextMenu()->addAction(text, this, [this, request] {
            if (pressedIndex() >= 0)
                emit(this->*request)(pressedIndex());
        });
        Commands::addPointed(action, QLatin1String(name));
    };
    addRequest("spriteList.delete", tr("Delete"), &SpriteList::deleteRequested);
    addRequest("spriteList.clear", tr("Clear"), &SpriteList::clearRequested);
    Commands::addPointed(contextMenu()->addAction(tr("Copy Image"), this, &SpriteList::copyImage),
                         QStringLiteral("spriteList.copyImage"));
    Commands::addPointed(contextMenu()->addAction(tr("Paste Image"), this, &SpriteList::pasteImage),
                         QStringLiteral("spriteList.pasteImage"));
    contextMenu()->addSeparator();
    QAction *add = contextMenu()->addAction(tr("Add Sprite"), this, &SpriteList::addSprite);
    add->setShortcut(Qt::Key_Insert);
    add->setShortcutContext(Qt::WidgetShortcut);
    addAction(Commands::add(add, QStringLiteral("spriteList.add")));
}

void SpriteList::setSprites(const QPointer<SpriteBank> &sprites)
{
    if (m_sprites)
        m_sprites->disconnect(this);
    m_sprites = sprites;
    if (m_sprites) {
        connect(m_sprites, &SpriteBank::countChanged, this, &SpriteList::followCount);
        connect(m_sprites, &SpriteBank::imageChanged, this, qOverload<>(&QWidget::update));
        connect(m_sprites, &SpriteBank::coloursChanged, this, qOverload<>(&QWidget::update));
        connect(m_sprites, &SpriteBank::shownColoursChanged, this, qOverload<>(&QWidget::update));
        connect(m_sprites, &SpriteBank::restored, this, &SpriteList::followCount);
        connect(m_sprites, &QObject::destroyed, this, [this] { setSprites(nullptr); });
    }
    reset(sprites ? 0 : -1);
    followCount();
}

void SpriteList::followCount()
{
    refresh();
    resize(width(), heightForWidth(width()));
}

// ---- Layout ---------------------------------------------------------------------------------

int SpriteList::cell() const
{
    return Cell;
}

int SpriteList::margin() const
{
    return (width() - columns(width()) * Cell) / 2;
}

int SpriteList::heightForWidth(int width) const
{
    return m_sprites && width >= 1 ? rowsHeight(width) : width;
}

QSize SpriteList::sizeHint() const
{
    return {width(), heightForWidth(width())};
}

// ---- Painting -------------------------------------------------------------------------------

void SpriteList::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    if (!m_sprites) {
        painter.fillRect(rect(), Qt::black);
        return;
    }
    painter.fillRect(event->rect(), palette().base());
    const auto [first, last] = cellsIn(event->rect());
    QImage blank(SpriteSize, QImage::Format_Indexed8);
    blank.setColorTable(m_sprites->image().colorTable());
    blank.fill(0);
    const Palette *colours = m_sprites->palette();
    for (int index = first; index < last; ++index) {
        const QImage image = index < count() ? picture(index) : blank;
        painter.drawImage(cellRect(index), colours ? colours->shown(image) : image);
    }
    if (last == cellCount()) {
        // The icon's colour is made for the window's background, not for that of a blank sprite.
        QColor ground = palette().color(QPalette::Base);
        ground.setAlpha(220);
        painter.fillRect(cellRect(count()).adjusted(4, 4, -4, -4), ground);
        themedIcon(QStringLiteral(":/AddDoc")).paint(&painter, cellRect(count()));
    }
    paintMarks(painter);
}

void SpriteList::paintMarks(QPainter &painter) const
{
    painter.setBrush(Qt::NoBrush);
    const auto frameOf = [this](int index) { return cellRect(index).adjusted(0, 0, -1, -1); };
    if (hoveredIndex() >= 0)
        paintHovered(painter, frameOf(hoveredIndex()));
    if (selectedIndex() >= 0)
        paintDotted(painter, frameOf(selectedIndex()), 1);
    if (dropTarget() >= 0 && dropTarget() != selectedIndex())
        paintDotted(painter, frameOf(dropTarget()), 3);
}

// ---- What the user asks for -----------------------------------------------------------------

QString SpriteList::textOf(int index) const
{
    return index < count() ? tr("Sprite %1").arg(index) : tr("Add a sprite");
}

void SpriteList::clicked(int index)
{
    if (index >= 0 && index == count())
        emit addSprite();
    else if (index >= 0)
        choose(index);
}

void SpriteList::choose(int index)
{
    select(index);
    emit indexChanged(index);
}

void SpriteList::openMenu(int index, QPoint globalPosition)
{
    if (index >= 0 && index < count())
        contextMenu()->popup(globalPosition);
}

// ---- Clipboard ------------------------------------------------------------------------------

void SpriteList::copyImage()
{
    if (pressedIndex() < 0)
        return;
    const auto type = m_sprites->depth() == Quenmora::EightBit ? Quenmora::Ui::Full256 : Quenmora::Ui::Offset16;
    const CanvasClipboardContent content{0, type, m_sprites->paletteId(), picture(pressedIndex())};
    QGuiApplication::clipboard()->setMimeData(content.toMimeData());
}

void SpriteList::pasteImage()
{
    const QImage pasted = clipboardImage();
    if (pressedIndex() < 0 || pasted.isNull() || !m_sprites->palette())
        return;
    // What the picture does not cover is black.
    QImage sprite(SpriteSize, QImage::Format_ARGB32);
    sprite.fill(Qt::black);
    QPainter painter(&sprite);
    painter.drawImage(0, 0, pasted.copy(QRect(QPoint(), SpriteSize) & pasted.rect()));
    painter.end();
    m_sprites->importImage(pressedIndex(), sprite);
    update();
}

} // namespace SpriteEditor
