#pragma once

#include "ui/keycursor.h"

class Canvas;

/// Draws on a canvas with the keyboard, and tells of its pixels.
class CanvasKeys : public KeyCursor
{
    Q_OBJECT

public:
    /// A child of the canvas.
    explicit CanvasKeys(Canvas *canvas);

    [[nodiscard]] QSize size() const override;
    [[nodiscard]] QRect area(QPoint pixel) const override;
    [[nodiscard]] QPoint cellAt(QPoint point) const override;
    [[nodiscard]] QString text(QPoint pixel) const override;
    [[nodiscard]] QRect selected() const override;

protected:
    [[nodiscard]] QRect visibleCells() const override;
    void scrollTo(QPoint first) override;
    void pick(QPoint pixel, bool other) override;
    void select(const QRect &pixels) override;
    void selectNone() override;
    [[nodiscard]] bool selectsFrom(QPoint pixel) const override;
    void openMenu(QPoint globalPosition) override;

private:
    Canvas *const m_canvas;
};
