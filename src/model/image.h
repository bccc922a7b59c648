#pragma once

#include "model/enums.h"

#include <QImage>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QUuid>

class Palette;

/// A full-screen picture of the Next's Layer 2 or LoRes modes, held as 8-bit palette indices.
///
/// It announces nothing: it is painted in image editors alone, and by the undo of what was painted there.
class Image : public QObject
{
    Q_OBJECT

public:
    /// The size of a mode's picture in pixels; invalid for a value that is no mode.
    [[nodiscard]] static QSize sizeOf(Quenmora::ImageMode mode);

    /// A picture of the mode's size, every pixel 0; a null picture for a value that is no mode.
    explicit Image(Quenmora::ImageMode mode, QObject *parent = nullptr);
    ~Image() override;

    [[nodiscard]] QUuid id() const { return m_id; }
    /// Takes over the id of a stored image.
    void setId(const QUuid &id) { m_id = id; }

    [[nodiscard]] QString name() const { return m_name; }
    void setName(const QString &name) { m_name = name; }

    [[nodiscard]] Quenmora::ImageMode mode() const { return m_mode; }

    /// The picture, 8-bit indexed, with the colour table of the bound palette.
    [[nodiscard]] QImage image() const { return m_image; }
    /// Replaces the picture. One that is not indexed, as a foreign file may hold it, is converted as by
    /// NxImage::indexed() with the bound palette.
    void setImage(const QImage &image);

    [[nodiscard]] QPointer<Palette> palette() const;
    /// Binds a palette (or none): the picture takes its colours, now and whenever one of them changes.
    void setPalette(const QPointer<Palette> &palette);
    /// The id of the bound palette, or a null id.
    [[nodiscard]] QUuid paletteId() const;

private:
    void applyColourTable();

    QUuid m_id = QUuid::createUuid();
    QString m_name;
    Quenmora::ImageMode m_mode;
    QImage m_image;
    QPointer<Palette> m_palette;
};
