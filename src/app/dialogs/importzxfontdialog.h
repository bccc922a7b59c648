#pragma once

#include "app/dialogs/filechooser.h"
#include "model/tileset.h"
#include "ui/dialogbase.h"

#include <QPointer>

class PicturePreview;
class QComboBox;
class QLabel;
class QLineEdit;
class QSpinBox;

/// Asks for a ZX Spectrum font, the tiles that its characters go into, and their colours, and shows the
/// characters as the tiles will look.
class ImportZXFontDialog : public DialogBase
{
    Q_OBJECT

public:
    explicit ImportZXFontDialog(QWidget *parent = nullptr);

    /// Who answers the question for the file; runFileDialog() at first.
    void setFileChooser(const FileChooser &chooser) { m_fileChooser = chooser; }

public slots:
    /// Opens the dialog for a tile set.
    void show(TileSet &tileSet);

signals:
    /// The first tile (from 0), the two colours (0–15, within the 16 of the palette offset), and the file.
    void accepted(int index, int foreIndex, int backIndex, int offset, const QString &file);

protected:
    [[nodiscard]] QString problem() const override;
    void submit() override;

private:
    void chooseFile();
    void readFont();
    void updateColours();
    void updatePreview();
    /// Characters that find a tile.
    [[nodiscard]] int characterCount() const;

    FileChooser m_fileChooser = runFileDialog;
    QPointer<TileSet> m_tileSet;
    QByteArray m_font; ///< as much of the file as the tile set could take
    QLineEdit *m_file;
    QSpinBox *m_first;
    QComboBox *m_fore;
    QComboBox *m_back;
    QSpinBox *m_offset;
    PicturePreview *m_preview;
    QLabel *m_summary;
};
