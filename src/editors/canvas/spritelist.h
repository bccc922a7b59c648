#pragma once

#include "model/spritebank.h"

#include <QPointer>
#include <QWidget>

class QMenu;

namespace SpriteEditor {

/// All sprites of a bank in centred rows, and after the last one a cell that asks for a new sprite.
///
/// The list changes no structure itself: it asks for it, so that whoever owns it can make each
/// request one undo step.
class SpriteList : public QWidget
{
    Q_OBJECT

public:
    explicit SpriteList(QWidget *parent = nullptr);

    SpriteBank *sprites() const { return m_sprites; }
    void setSprites(const QPointer<SpriteBank> &sprites);
    /// The selected sprite, -1 when there is none.
    int selectedIndex() const { return m_selected; }
    void setSelectedIndex(int index);
    QMenu *contextMenu() const { return m_menu; }

    /// The sprite under a point; the number of sprites for the cell that adds one, -1 for none.
    int indexAt(QPoint point) const;
    QRect cellRect(int index) const;

    bool hasHeightForWidth() const override { return true; }
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
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private slots:
    void copyImage();
    void pasteImage();

private:
    int count() const { return m_sprites ? m_sprites->count() : 0; }
    int columns(int width) const;
    int margin() const;
    /// The sprite under a point, -1 for none and for the cell that adds one.
    int spriteAt(QPoint point) const;
    int pressedSprite() const { return spriteAt(m_pressPoint); }
    void refresh();
    void choose(int index);
    void startDrag();
    void paintMarks(QPainter &painter) const;

    QPointer<SpriteBank> m_sprites;
    QMenu *m_menu;
    int m_selected = -1;
    int m_hovered = -1;
    int m_dropTarget = -1;
    QPoint m_pressPoint{-1, -1};
    Qt::MouseButtons m_buttons = Qt::NoButton;
};

} // namespace SpriteEditor
