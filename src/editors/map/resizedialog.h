#pragma once

#include "ui/dialogbase.h"

class QLabel;
class QSpinBox;

namespace MapEditor {

class AnchorPad;
class ResizePreview;

/// Asks for another size of a map, and for what of it stays in place.
class ResizeDialog : public DialogBase
{
    Q_OBJECT

public:
    static constexpr int MaximumSide = 9999;

    explicit ResizeDialog(QWidget *parent = nullptr);

    /// Starts with the size of a map, in cells.
    void setMapSize(QSize size);
    [[nodiscard]] QSize mapSize() const;
    [[nodiscard]] Qt::Alignment alignment() const;

private:
    QSpinBox *addSide(const QString &label);
    void showPreview();

    QSize m_before;
    QSpinBox *m_width;
    QSpinBox *m_height;
    AnchorPad *m_anchor;
    ResizePreview *m_preview;
    QLabel *m_summary;
};

} // namespace MapEditor
