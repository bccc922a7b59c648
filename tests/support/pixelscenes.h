#pragma once

#include "editors/canvas/canvas.h"
#include "editors/canvas/imageeditorview.h"
#include "editors/canvas/spritelist.h"
#include "editors/canvas/spritewindow.h"
#include "editors/canvas/tilewindow.h"
#include "editors/common/dragdata.h"
#include "support/canvasmouse.h"
#include "support/editorinput.h"

#include <QtWidgets>

#include <memory>
#include <vector>

/// The three editors around a canvas, each with something to edit.
namespace PixelScenes {

/// An editor and what it edits: a few blank pictures (tiles, sprites, images), of which it shows the first.
struct Scene
{
    virtual ~Scene() = default;
    virtual QWidget &editor() = 0;
    virtual void show(int element) = 0;
    virtual QImage stored(int element) const = 0;
    virtual void destroy() = 0;

    /// Draws a pixel on the diagonal of an element.
    void draw(int element, int pixel)
    {
        show(element);
        EditorInput::Mouse{canvas()}.drag({{pixel, pixel}});
    }
    /// The pixel on the diagonal of an element, and of the picture shown.
    int at(int element, int pixel) const { return stored(element).pixelIndex(pixel, pixel); }
    int shown(int pixel) { return canvas().image().pixelIndex(pixel, pixel); }
    EditTarget &target() { return dynamic_cast<EditTarget &>(editor()); }
    Canvas &canvas() { return *editor().findChild<Canvas *>(); }

    Palette palette;
    QUndoStack stack;

protected:
    Scene() { palette.loadStandardNext(); }
    void open()
    {
        editor().resize(600, 900);
        editor().show();
    }
};

struct TileScene : Scene
{
    std::unique_ptr<TileSet> tiles{new TileSet(8)};
    TileWindow window;

    TileScene()
    {
        tiles->setPalette(&palette);
        window.setUndoStackProvider([this](const QUuid &) { return &stack; });
        window.setTileSet(tiles.get());
        open();
    }
    QWidget &editor() override { return window; }
    void show(int element) override { window.setTileIndex(element + 1); }
    QImage stored(int element) const override { return tiles->image(element); }
    void destroy() override { tiles.reset(); }
};

struct SpriteScene : Scene
{
    std::unique_ptr<SpriteBank> bank{new SpriteBank(Quenmora::FourBit)};
    SpriteWindow window;
    SpriteEditor::SpriteList &list{*window.list()};

    SpriteScene()
    {
        bank->setPalette(&palette);
        bank->addSprite();
        bank->addSprite();
        window.setUndoStackProvider([this](const QUuid &) { return &stack; });
        window.setSprites(bank.get());
        open();
    }
    QWidget &editor() override { return window; }
    void show(int element) override { click(element); }
    QImage stored(int element) const override { return bank->spriteImage(element, false, false, false); }
    void destroy() override { bank.reset(); }

    void click(int index, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(&list, button, Qt::NoModifier, list.cellRect(index).center());
        list.contextMenu()->close();
    }
    /// Runs an entry of a sprite's context menu.
    void trigger(int index, const QString &text)
    {
        click(index, Qt::RightButton);
        EditorInput::trigger(*list.contextMenu(), text);
    }
    void drop(int from, int to, Qt::KeyboardModifiers modifiers)
    {
        const std::unique_ptr<QMimeData> data(SpriteDrag{from}.toMimeData());
        EditorInput::drop(list, list.cellRect(from).center(), list.cellRect(to).center(), *data, modifiers);
    }
    /// The pixel in the middle of every sprite.
    QByteArray sprites() const { return indices(bank->image().scaled(1, bank->count())); }
};

struct ImageScene : Scene
{
    std::vector<std::unique_ptr<Image>> images;
    std::unique_ptr<ImageEditor::View> view;
    QTemporaryDir folder;

    explicit ImageScene(Quenmora::ImageMode mode = Quenmora::LoRes_128x96)
    {
        for (int i = 0; i < 3; ++i)
            images.emplace_back(std::make_unique<Image>(mode))->setPalette(&palette);
        reopen();
    }
    /// Opens a new tab, and closes the one before.
    void reopen()
    {
        view = std::make_unique<ImageEditor::View>();
        view->setUndoStack(&stack);
        show(0);
        open();
    }
    QWidget &editor() override { return *view; }
    void show(int element) override { view->setImage(images[size_t(element)].get()); }
    QImage stored(int element) const override { return images[size_t(element)]->image(); }
    void destroy() override { images.clear(); }

    QString file(const QString &name) const { return folder.filePath(name); }
    void exportAs(const QString &name) const
    {
        QMetaObject::invokeMethod(view.get(), "exportImage", Q_ARG(QString, file(name)));
    }
    /// Answers the file dialog that an action of the view opens.
    void choose(Quenmora::Ui::ToolButton action, const QString &name) const
    {
        QMetaObject::invokeMethod(view.get(), "changeMode", Q_ARG(Quenmora::Ui::ToolButton, action),
                                  Q_ARG(bool, false));
        for (QFileDialog *dialog : view->findChildren<QFileDialog *>()) {
            if (dialog->close())
                emit dialog->fileSelected(file(name));
        }
    }
};

inline QImage plainPicture(QSize size, QColor colour)
{
    return pictureOf(size, QImage::Format_RGB32, [colour](int) { return colour.rgb(); });
}

} // namespace PixelScenes
