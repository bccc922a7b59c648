#pragma once

#include <QRect>
#include <QSize>
#include <QWidget>

namespace MapEditor {

/// What becomes of a map that gets another size: what is kept, what is cut off and what is added.
class ResizePreview : public QWidget
{
    Q_OBJECT

public:
    explicit ResizePreview(QWidget *parent = nullptr);

    /// Sizes in cells; the alignment tells which edges the content stays at.
    void showResize(QSize before, QSize after, Qt::Alignment alignment);
    /// The cells of the map as it is that stay.
    [[nodiscard]] QRect kept() const;

    [[nodiscard]] QSize sizeHint() const override { return {160, 160}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QRect m_before; ///< in cells of the new map, as m_after
    QRect m_after;
};

} // namespace MapEditor
