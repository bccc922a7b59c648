#include "ui/picturepreview.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

/// Pixels along the longer side that are kept: more are not seen, and cost time whenever they are painted.
constexpr int MostPixels = 1024;

/// A checker board of two colours of the theme.
QBrush checkers(const QPalette &theme)
{
    constexpr int side = 8;
    QPixmap squares(2 * side, 2 * side);
    squares.fill(theme.color(QPalette::Midlight));
    QPainter painter(&squares);
    for (const int at : {0, side})
        painter.fillRect(at, at, side, side, theme.color(QPalette::Mid));
    return squares;
}

} // namespace

PicturePreview::PicturePreview(QWidget *parent) : QFrame(parent)
{
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleName(tr("Preview"));
}

QLayout *PicturePreview::sideBySide(PicturePreview *before, PicturePreview *after)
{
    auto *pictures = new QHBoxLayout;
    for (const auto &[text, picture] : {std::pair(tr("Before"), before), {tr("After"), after}}) {
        auto *column = new QVBoxLayout;
        column->addWidget(new QLabel(text));
        column->addWidget(picture, 1);
        picture->setAccessibleName(text);
        picture->m_usualSize = {252, 192};
        pictures->addLayout(column, 1);
    }
    return pictures;
}

void PicturePreview::setPicture(const QImage &picture)
{
    m_picture = std::max(picture.width(), picture.height()) <= MostPixels
        ? picture
        : picture.scaled(MostPixels, MostPixels, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    update();
}

void PicturePreview::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event);
    if (m_picture.isNull())
        return;
    const QRectF room = contentsRect().adjusted(4, 4, -4, -4);
    double scale = std::min(room.width() / m_picture.width(), room.height() / m_picture.height());
    if (scale > 1)
        scale = std::floor(scale);
    QRectF target(QPointF(), QSizeF(m_picture.size()) * scale);
    target.moveCenter(room.center());
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, scale < 1);
    if (m_picture.hasAlphaChannel())
        painter.fillRect(QRectF(target.topLeft().toPoint(), target.size()), checkers(palette()));
    painter.drawImage(QRectF(target.topLeft().toPoint(), target.size()), m_picture);
}
