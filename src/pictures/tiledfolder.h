#pragma once

#include "pictures/tiledtileset.h"

#include <QHash>
#include <QRgb>

#include <optional>

/// The files that a map or tile set leads to: where they are, and whether they may be read.
class TiledFolder
{
public:
    /// Pixels of all pictures together.
    static constexpr qint64 MaxPixels = 12 << 20;

    /// The folder of the file that was opened.
    TiledFolder(const QString &fileName, TiledReferences references);

    struct Place
    {
        QString path; ///< empty where nothing may be read
        bool isOutside = false;
        QString name; ///< as people know it: the whole path where it is outside
    };

    /// Where a file in a folder leads to.
    [[nodiscard]] Place locate(const QString &folder, const QString &reference) const;

    /// A picture that was located, the transparent colour clear; decoded once, however often it is asked for.
    [[nodiscard]] Result<QImage> picture(const Place &place, std::optional<QRgb> transparent);

    /// The folder that was opened.
    [[nodiscard]] QString path() const { return m_folder; }

private:
    [[nodiscard]] Result<QImage> readPicture(const QString &path);

    QString m_folder; ///< absolute
    QString m_canonical; ///< the same without links
    TiledReferences m_references;
    qint64 m_pixelsLeft = MaxPixels;
    QHash<QString, Result<QImage>> m_pictures; ///< by path and transparent colour
};
