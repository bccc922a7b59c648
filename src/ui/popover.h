#pragma once

#include "ui/enums.h"

#include <QFrame>

class QVBoxLayout;

/// A small panel that belongs to something on the screen and points at it with an arrow.
///
/// It holds one widget, closes when the user clicks elsewhere or presses Escape, and stays inside the
/// screen: where there is no room on the wanted side it opens on the opposite one.
class Popover : public QFrame
{
    Q_OBJECT

public:
    explicit Popover(QWidget *parent);

    /// The widget inside; the popover takes it and deletes the one before.
    void setContent(QWidget *content);
    [[nodiscard]] QWidget *content() const { return m_content; }

    /// Opens the popover beside target (in global coordinates), or moves it there when it is open.
    void showBeside(const QRect &target, Quenmora::Ui::DialogPosition wanted = Quenmora::Ui::DialogPosition::RightOf);

    /// Where the arrow points.
    [[nodiscard]] Quenmora::Ui::Direction arrow() const { return m_arrow; }

    /// The top-left corner of a popover of this size beside target, inside the screen; position is where
    /// it should stand and becomes where it does stand.
    [[nodiscard]] static QPoint place(const QSize &size, const QRect &target, const QRect &screen,
                                      Quenmora::Ui::DialogPosition &position);

signals:
    /// The popover is gone from the screen, for whatever reason.
    void closed();

protected:
    void hideEvent(QHideEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    /// Panel and arrow, in widget coordinates.
    [[nodiscard]] QPolygon outline() const;
    [[nodiscard]] QRegion shape() const;
    void setArrow(Quenmora::Ui::Direction arrow);

    QVBoxLayout *m_layout;
    QWidget *m_content = nullptr;
    Quenmora::Ui::Direction m_arrow = Quenmora::Ui::Direction::Left;
    int m_tip = 0; ///< where the arrow is along its edge
};
