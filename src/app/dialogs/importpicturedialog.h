#pragma once

#include "app/imports/pictureimport.h"
#include "pictures/tilereduction.h"
#include "ui/dialogbase.h"

#include <optional>

class PicturePreview;
class QCheckBox;
class QComboBox;
class QLabel;

/// Asks how a map is to be made of a picture that does not come through cutting as it is: of colours that quantising
/// changes, clear pixels, more colours or more tiles than there is room for. It shows the picture before and after, and
/// tells what is lost.
class ImportPictureDialog : public DialogBase
{
    Q_OBJECT

public:
    explicit ImportPictureDialog(QWidget *parent = nullptr);

public slots:
    /// Opens the dialog for a picture file.
    void show(const QString &file, const PictureLoss &loss);

signals:
    void accepted(const QString &file, const TileReduction &reduction);
    /// Nothing of it is wanted: the picture is to be cut as it is.
    void unreduced(const QString &file, const PictureLoss &picture);

protected:
    [[nodiscard]] QString problem() const override;
    void submit() override;

private:
    void refresh();
    void forget();
    [[nodiscard]] bool reduces() const;
    [[nodiscard]] QString summary() const;

    QString m_file;
    PictureLoss m_loss;
    std::optional<TileReduction> m_reduction; ///< for the choices that are shown
    QCheckBox *m_keepColours;
    QCheckBox *m_keepClearPixels;
    QCheckBox *m_together;
    QComboBox *m_dithering;
    PicturePreview *m_before;
    PicturePreview *m_after;
    QLabel *m_summary;
};
