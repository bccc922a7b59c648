#pragma once

#include "model/palette.h"

#include <QPointer>
#include <QWidget>

class WidgetCells;

/// Chooses the foreground and background colour from one bank of 16 colours of a palette.
///
/// Two rows of eight cells (two columns when vertical), after a margin that shows the two chosen
/// colours. The left button chooses the foreground, the right button the background;
/// so do the arrow keys without and with Shift.
class ColourSelector : public QWidget
{
    Q_OBJECT

public:
    explicit ColourSelector(Qt::Orientation orientation = Qt::Horizontal, QWidget *parent = nullptr);

    /// Palette indices (0–255).
    int foreIndex() const { return m_foreIndex; }
    int backIndex() const { return m_backIndex; }
    /// The bank shown, 1–16: bank n covers the indices from (n - 1) * 16.
    int offset() const { return m_offset; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public slots:
    void setOffset(int offset);
    void setPalette(const QPointer<Palette> &pal);
    void setForeIndex(int index);
    void setBackIndex(int index);
    void paletteChanged(int first, int last);
    /// Marks the colour whose pixels are not drawn; -1 for none.
    void setClearIndex(int index);

signals:
    void foreColourChanged(int index);
    void backColourChanged(int index);
    void doubleClicked(int index);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool event(QEvent *event) override;

private:
    int along(QSize size) const;
    /// The palette index of the cell under a point, -1 outside the cells.
    int indexAt(QPoint point) const;
    void chooseFore(int index);
    void chooseBack(int index);
    QRect cellRect(int cell) const;
    QRect oriented(QRect rect) const;
    QColor colour(int index) const;

    void tellCells();
    [[nodiscard]] QString textOf(int index) const;

    QPointer<Palette> m_palette;
    WidgetCells *m_cells = nullptr;
    Qt::Orientation m_orientation;
    int m_offset = 1;
    int m_foreIndex = 1;
    int m_backIndex = 0;
    int m_clearIndex = -1;
    int m_cell = 24;
    int m_margin = 49;
};
