#pragma once

#include "app/dialogs/creationdialog.h"
#include "app/imports/spritecolours.h"
#include "app/imports/spriteimport.h"
#include "model/nximage.h"
#include "model/palette.h"
#include "model/project.h"
#include "pictures/reducedpixels.h"

#include <QPointer>

#include <optional>

class AssetChooser;
class DepthChooser;
class PicturePreview;
class QCheckBox;
class QLabel;
class QRadioButton;
class ReductionBox;

namespace SpriteEditor {

/// Asks how sprites are to be made of a picture, in the colours of a palette of the project or in colours of
/// their own, which may be reduced to as many as there is room for. It shows the picture before and after, and tells
/// what is lost.
class ImportImageDialog : public CreationDialog
{
    Q_OBJECT

public:
    explicit ImportImageDialog(QWidget *parent = nullptr);

public slots:
    /// Opens the dialog for a picture file.
    void show(const Project &project, const QString &file);

signals:
    void accepted(const SpriteImport &import);

protected:
    [[nodiscard]] QString problem() const override;
    void submit() override;

private:
    /// The picture's colours as they come in.
    struct Look
    {
        NxImage thumbnail;
        QList<QRgb> colours; ///< of the picture
    };

    void take(Look &look, QImage image);
    [[nodiscard]] const Look &look() const;
    void refresh();
    /// The picture as the sprites will show it, 8-bit indices of the palette.
    [[nodiscard]] QImage indexed();
    [[nodiscard]] Palette *chosenPalette() const;
    [[nodiscard]] SpriteTransparency transparency() const;
    /// Where colours go, as far as the choices go.
    [[nodiscard]] SpriteColours placesOf(const QList<QRgb> &colours) const;
    [[nodiscard]] QString depthProblem() const;
    [[nodiscard]] QString summary() const;
    /// Pieces of 16×16 across and down.
    [[nodiscard]] QSize pieces() const;

    QPointer<const Project> m_project;
    QString m_file;
    QImage m_picture; ///< while the dialog is open
    QSize m_size; ///< of the picture; empty when the file cannot be read
    QString m_refusal; ///< why
    Look m_quantised;
    Look m_kept; ///< empty for a picture that has other colours than the machine's
    bool m_hasClearPixels = false;
    std::optional<ReducedPixels> m_reduced; ///< for the choices that are shown
    QRadioButton *m_remap;
    QRadioButton *m_slice;
    AssetChooser *m_palette;
    QCheckBox *m_keepColours;
    DepthChooser *m_depth;
    ReductionBox *m_reduction;
    PicturePreview *m_after;
    PicturePreview *m_before;
    QLabel *m_summary;
};

} // namespace SpriteEditor
