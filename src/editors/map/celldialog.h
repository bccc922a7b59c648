#pragma once

#include "ui/dialogbase.h"

#include <QPoint>
#include <QSize>

class QSpinBox;

namespace MapEditor {

/// Asks for a cell of a map.
class CellDialog : public DialogBase
{
    Q_OBJECT

public:
    explicit CellDialog(QWidget *parent = nullptr);

    void propose(QPoint cell, QSize map);
    [[nodiscard]] QPoint cell() const;

private:
    QSpinBox *m_column;
    QSpinBox *m_row;
};

} // namespace MapEditor
