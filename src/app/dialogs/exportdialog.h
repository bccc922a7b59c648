#pragma once

#include "model/tileset.h"
#include "ui/dialogbase.h"

class QCheckBox;
class QSpinBox;

namespace TileEditor {

/// Asks which tiles of a tile set to export, and how.
class ExportDialog : public DialogBase
{
    Q_OBJECT

public:
    explicit ExportDialog(QWidget *parent = nullptr);

public slots:
    /// Opens the dialog for a tile set. The range is all of its tiles, unless a person chose another that the
    /// tile set has as well.
    void show(const TileSet &tileSet);

signals:
    /// First and last tile count from 1.
    void accepted(int first, int last, bool rotate);

protected:
    [[nodiscard]] QString problem() const override;
    void submit() override;

private:
    int m_count = 0;
    QSpinBox *m_first;
    QSpinBox *m_last;
    QCheckBox *m_rotate;
};

} // namespace TileEditor
