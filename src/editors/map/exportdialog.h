#pragma once

#include "ui/dialogbase.h"

class Map;
class QCheckBox;
class QDir;
class QLabel;

namespace MapEditor {

/// Asks what of a map is to be exported, and names the files.
class ExportDialog : public DialogBase
{
    Q_OBJECT

public:
    explicit ExportDialog(QWidget *parent = nullptr);

    /// Offers a map, and what it has of a tile set with a palette, for a folder.
    void offer(const Map &map, const QDir &folder);

    [[nodiscard]] bool exportMap() const;
    [[nodiscard]] bool exportTiles() const;
    [[nodiscard]] bool exportPalette() const;

protected:
    [[nodiscard]] QString problem() const override;

private:
    /// A box, and the name of the file that it stands for.
    struct Choice
    {
        QCheckBox *box;
        QLabel *file;
    };

    Choice addChoice(const QString &text);
    /// A choice without a file cannot be made.
    void setFile(const Choice &choice, const QDir &folder, const QString &fileName);

    Choice m_map;
    Choice m_tiles;
    Choice m_palette;
};

} // namespace MapEditor
