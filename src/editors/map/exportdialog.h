#pragma once

#include "ui/dialogbase.h"

class QCheckBox;

namespace MapEditor {

/// Asks what of a map is to be exported.
class ExportDialog : public DialogBase
{
    Q_OBJECT

public:
    explicit ExportDialog(QWidget *parent = nullptr);

    /// What there is to export beside the map itself.
    void setAvailable(bool tiles, bool palette);

    [[nodiscard]] bool exportMap() const;
    [[nodiscard]] bool exportTiles() const;
    [[nodiscard]] bool exportPalette() const;

protected:
    [[nodiscard]] QString problem() const override;

private:
    QCheckBox *addCheckBox(const QString &text);

    QCheckBox *m_map;
    QCheckBox *m_tiles;
    QCheckBox *m_palette;
};

} // namespace MapEditor
