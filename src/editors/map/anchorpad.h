#pragma once

#include <QWidget>

class QButtonGroup;

namespace MapEditor {

/// Nine buttons on which is chosen what stays in place when a map gets another size: a corner, the middle
/// of an edge or the centre. Arrows show where the map grows.
class AnchorPad : public QWidget
{
    Q_OBJECT

public:
    explicit AnchorPad(QWidget *parent = nullptr);

    /// The edges at which the content stays; top left at first.
    [[nodiscard]] Qt::Alignment alignment() const;
    void setAlignment(Qt::Alignment alignment);
    /// What one of nine places is called, counted row by row.
    [[nodiscard]] static QString nameOf(int place);

signals:
    void alignmentChanged(Qt::Alignment alignment);

private:
    void showArrows();

    QButtonGroup *m_buttons; ///< by row × 3 + column
};

} // namespace MapEditor
