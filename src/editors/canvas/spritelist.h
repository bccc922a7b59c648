#pragma once

#include "editors/canvas/cellgrid.h"
#include "editors/common/dragdata.h"
#include "model/spritebank.h"

#include <QPointer>

namespace SpriteEditor {

/// All sprites of a bank in centred rows, and after the last one a cell that asks for a new sprite.
///
/// The list changes no structure itself: it asks for it, so that whoever owns it can make each
/// request one undo step.
class SpriteList : public CellGrid
{
    Q_OBJECT

public:
    explicit SpriteList(QWidget *parent = nullptr);

    SpriteBank *sprites() const { return m_sprites; }
    void setSprites(const QPointer<SpriteBank> &sprites);

    int heightForWidth(int width) const override;
    QSize sizeHint() const override;

signals:
    void indexChanged(int index);
    void copySprite(int source, int dest);
    void moveSprite(int source, int dest);
    void addSprite();
    void deleteRequested(int index);
    void clearRequested(int index);

protected:
    int count() const override { return m_sprites ? m_sprites->count() : 0; }
    /// The cell that adds a sprite follows the last one.
    int cellCount() const override { return m_sprites ? m_sprites->count() + 1 : 0; }
    int cell() const override;
    int margin() const override;
    QImage picture(int index) const override { return m_sprites->spriteImage(index, false, false, false); }
    QString textOf(int index) const override;
    QMimeData *dragData(int index) const override { return SpriteDrag{index}.toMimeData(); }
    void clicked(int index) override;
    void choose(int index) override;
    void openMenu(int index, QPoint globalPosition) override;
    void copyElement(int source, int target) override { emit copySprite(source, target); }
    void moveElement(int source, int target) override { emit moveSprite(source, target); }
    void paintEvent(QPaintEvent *event) override;

private slots:
    void copyImage();
    void pasteImage();

private:
    void followCount();
    void paintMarks(QPainter &painter) const;

    QPointer<SpriteBank> m_sprites;
};

} // namespace SpriteEditor
