#pragma once

#include "editors/canvas/pixeleditor.h"
#include "model/spritebank.h"
#include "ui/dockwidget.h"
#include "undo/editrecorder.h"

class ColourPalette;
class QSpinBox;
class SectionHeader;

namespace SpriteEditor {
class SpriteList;
}

/// The sprite editor dock: paints one sprite of a bank, above the list of all of them.
class SpriteWindow : public DockWidget, public PixelEditor
{
    Q_OBJECT

public:
    explicit SpriteWindow(QWidget *parent = nullptr);

    void setUndoStackProvider(const EditRecorder::StackProvider &stackFor) { m_stackFor = stackFor; }

    SpriteBank *sprites() const { return m_sprites; }
    /// The sprite shown, -1 without a bank.
    int spriteIndex() const { return m_sprites ? m_index : -1; }
    SpriteEditor::SpriteList *list() const { return m_list; }

public slots:
    /// Writes the canvas's image into the sprite.
    void updateSpriteImage();
    void changeSprite(int index);
    /// Shows again what the bank holds.
    void refresh();
    /// Null shows the placeholder.
    void setSprites(const QPointer<SpriteBank> &sprites);
    /// Binds the bank to a palette and draws with it.
    void setSpritePalette(Palette *palette);

protected:
    bool event(QEvent *event) override;

private:
    void buildPage();
    void connectParts();
    void loadSprite();
    void addPreviews();
    QImage pictureOf(const AnimationFrame::Cell &cell) const;
    /// The first animation that shows the sprite; null when none does.
    const Animation *animation() const;
    PreviewWindow::Picture inMotion(int frame) const;
    void showGhost();
    /// Exchanges the background colour for the foreground colour in the whole bank.
    void replaceColourInAllSprites();
    void showTransparency();
    /// Makes a pixel value the one that is not drawn, as one undo step.
    void changeTransparency(int pixel);
    /// Runs a change of the bank's structure as one undo step.
    void editStructure(const QString &text, const std::function<void(SpriteBank &)> &edit);
    void pushEdit(const QString &text, const QImage &before, const QImage &after, PixelEditCommand::Kind kind);
    void applyEdit(const QPointer<SpriteBank> &bank, int index, const QImage &image);

    void showStroke(const QImage &pixels) override;

    QPointer<SpriteBank> m_sprites;
    ColourPalette *m_colours;
    QSpinBox *m_transparency;
    SectionHeader *m_header;
    SpriteEditor::SpriteList *m_list;
    QAction *m_onionSkin;
    int m_index = 0;
    EditRecorder::StackProvider m_stackFor;
    bool m_writing = false;
    QPointer<SpriteBank> m_strokeBank; ///< which shows a stroke that is being drawn
};
