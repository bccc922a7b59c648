#pragma once

#include "model/palette.h"

#include <QPointer>
#include <QWidget>

class WidgetCells;

/// Chooses a primary and a secondary colour from many colours of a palette: all 256, or 16 of them
/// from an offset on. Two swatches beside them show which are chosen. The left button chooses the primary colour, the
/// right button the secondary; so do the arrow keys without and with Shift.
class ColourPalette : public QWidget
{
    Q_OBJECT

public:
    explicit ColourPalette(QWidget *parent = nullptr);

    /// Palette indices (0–255).
    int primaryIndex() const { return m_primary; }
    int secondaryIndex() const { return m_secondary; }

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public slots:
    void setPalette(const QPointer<Palette> &palette);
    /// How many colours are offered (16 or 256) and from which index on.
    void setRange(int offset, int count);
    void setPrimaryIndex(int index);
    void setSecondaryIndex(int index);
    /// Marks the colour whose pixels are not drawn; -1 for none.
    void setClearIndex(int index);

signals:
    void primaryIndexChanged(int index);
    void secondaryIndexChanged(int index);
    void doubleClicked(int index);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool event(QEvent *event) override;

private:
    /// 256 colours take 32 columns where these fit, else 16; few take two rows.
    int columns(int width) const;
    int rows(int width) const;
    /// Side of a cell when there is height enough.
    int wantedCell(int width) const;
    int heightFor(int cell, int width) const;
    int cell() const;
    QRect cellRect(int index) const;
    int indexAt(QPoint point) const;
    QColor colour(int index) const;
    void choosePrimary(int index);
    void chooseSecondary(int index);

    void tellCells();
    [[nodiscard]] QString textOf(int index) const;

    QPointer<Palette> m_palette;
    WidgetCells *m_cells = nullptr;
    int m_offset = 0;
    int m_count = Palette::Size;
    int m_primary = 1;
    int m_secondary = 0;
    int m_clear = -1;
};
