#pragma once

#include <QFrame>
#include <QImage>

class QLayout;

/// Shows a picture as large as it fits, with whole pixels where it is smaller than the room. A checker board shows
/// through what is transparent.
class PicturePreview : public QFrame
{
    Q_OBJECT

public:
    explicit PicturePreview(QWidget *parent = nullptr);

    /// A picture before and after what a dialog does to it, side by side under their titles. The caller owns the
    /// layout.
    [[nodiscard]] static QLayout *sideBySide(PicturePreview *before, PicturePreview *after);

    [[nodiscard]] QImage picture() const { return m_picture; }
    /// A null picture leaves the preview empty.
    void setPicture(const QImage &picture);

    QSize sizeHint() const override { return m_usualSize; }
    QSize minimumSizeHint() const override { return {m_usualSize.width() / 2, 96}; } // where the screen is small

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QImage m_picture;
    QSize m_usualSize{528, 160}; ///< 32 characters at twice their size
};
