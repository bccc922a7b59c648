#pragma once

#include "editors/canvas/imageimport.h" // moc wants to know it whole
#include "editors/canvas/pixeleditor.h"
#include "model/image.h"
#include "model/palette.h"
#include "ui/enums.h"

#include <QPointer>
#include <QUndoStack>
#include <QWidget>

class ColourPalette;
class Project;
class QFileDialog;

namespace ImageEditor {

class ImportDialog;

/// The document page that paints one image, or the project's scratch picture.
class View : public QWidget, public PixelEditor
{
    Q_OBJECT

public:
    explicit View(QWidget *parent = nullptr);

    /// Edits an image asset with its palette; null shows an empty picture.
    void setImage(const QPointer<Image> &image);
    Image *image() const { return m_image; }
    /// Edits a picture that is no asset; its changes are announced by imageChanged() alone.
    void setPixels(const QImage &pixels);
    QImage pixels() const;
    void setPalette(const QPointer<Palette> &palette);
    /// Shows the image with another palette from now on, as an undo step; its pixels keep their indices.
    void swapPalette(const QPointer<Palette> &palette);
    void setUndoStack(QUndoStack *stack);

signals:
    void imageChanged(QImage image);
    /// The image was bound to another palette, or to the one before again by undo.
    void paletteSwapped(const QPointer<Palette> &palette);
    /// A picture was placed in the image.
    void imported(const QString &filePath, const ImageImport &choices);
    /// A file could not be read or written.
    void error(const QString &message);
    /// The picture was written to a file; asset is its name.
    void exported(const QString &asset, const QString &filePath);

protected:
    bool event(QEvent *event) override;

private slots:
    void changeMode(Quenmora::Ui::ToolButton action, bool checked);
    void exportImage(const QString &fileName);
    void setForeIndex(int index);
    void setBackIndex(int index);

private:
    void buildPage();
    void connectParts();
    /// 16 in the 640 × 256 mode, else 256.
    int colourCount() const;
    void writeBack();
    void openImportFile();
    void openExportFile();
    /// The image's name.
    QString name() const;
    void importPicture(const QString &fileName);
    void place(const QImage &pixels);
    /// With a new palette of the colours of its table.
    void placeWithPalette(const QImage &pixels, int transparent);
    /// That of the image; null for a picture that is no asset.
    [[nodiscard]] Project *project() const;
    void pushEdit(const QString &text, const QImage &before, const QImage &after, PixelEditCommand::Kind kind);

    QPointer<Image> m_image;
    QMetaObject::Connection m_reordered; ///< tells that the palette of the picture has another order
    ColourPalette *m_colours;
    QPointer<QUndoStack> m_undoStack;
    QFileDialog *m_importFile = nullptr;
    QFileDialog *m_exportFile = nullptr;
    ImportDialog *m_importDialog = nullptr;
    QString m_importedFile; ///< for which the dialog is open
};

} // namespace ImageEditor
