#include "app/dialogs/picturepreview.h"

#include <QPainter>

#include <cmath>

PicturePreview::PicturePreview(QWidget *parent) : QFrame(parent)
{
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleName(tr("Preview"));
}

void PicturePreview::setPicture(const QImage &picture)
{
    m_picture = picture;
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
    painter.drawImage(QRectF(target.topLeft().toPoint(), target.size()), m_picture);
}
