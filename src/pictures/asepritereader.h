#pragma once

#include "pictures/asepritecontent.h"
#include "pictures/bytereader.h"
#include "pictures/foreignfile.h"

#include <QHash>

#include <optional>

/// Reads a whole file: a head, then frames of chunks, all numbers low byte first.
///
///   head    128 bytes   size of the file 4, A5E0 2, frames 2, width 2, height 2, bits of a pixel 2, flags 4, speed 2,
///                       8 bytes, transparent index 1, 3 bytes, colours 2, pixel width and height 1 each,
///                       grid x and y 2 each (signed), grid width and height 2 each
///   frame   16 bytes    size with this head 4, F1FA 2, chunks 2, milliseconds 2, 2 bytes, chunks 4
///   chunk   6 bytes     size with this head 4, type 2
///
/// What the chunks hold stands with the functions that read them; chunks of other types are skipped.
class AsepriteReader
{
public:
    using Content = AsepriteFile::Content;

    explicit AsepriteReader(QByteArrayView bytes) : m_bytes(bytes) { }

    [[nodiscard]] Result<std::shared_ptr<const Content>> read();

private:
    using Pixels = Content::Pixels;

    struct FilePalette
    {
        QList<QRgb> colours;
        int frame = 0; ///< the number of the first that says some, whose are taken
    };

    // Each returns false where it fails, with the reason in m_problem.
    [[nodiscard]] bool readHead(ByteReader &head);
    [[nodiscard]] bool readFrame(ByteReader &file);
    [[nodiscard]] bool readChunk(int type, ByteReader &chunk);
    [[nodiscard]] bool readLayer(ByteReader &chunk);
    [[nodiscard]] bool readCel(ByteReader &chunk);
    [[nodiscard]] bool readCelContent(int type, ByteReader &chunk, Content::Cel &cel);
    [[nodiscard]] bool readLink(ByteReader &chunk, Content::Cel &cel);
    [[nodiscard]] bool readTileCells(ByteReader &chunk, Content::Cel &cel);
    [[nodiscard]] bool readPalette(ByteReader &chunk);
    [[nodiscard]] bool readOldPalette(ByteReader &chunk, int largest);
    [[nodiscard]] bool readTags(ByteReader &chunk);
    [[nodiscard]] bool readTileSet(ByteReader &chunk);
    [[nodiscard]] bool readPixels(bool isPacked, ByteReader &chunk, Pixels &pixels);
    [[nodiscard]] bool finish();
    [[nodiscard]] bool finishPalette();
    [[nodiscard]] bool finishTileSets();
    [[nodiscard]] bool finishFrames();

    /// Takes memory from what all pixels together may have.
    [[nodiscard]] bool takeMemory(qint64 bytes);
    void resize(FilePalette &palette, qsizetype size);
    void setColour(FilePalette &palette, qsizetype index, QRgb colour);
    [[nodiscard]] QString where(int layer) const;
    [[nodiscard]] bool fail(const QString &reason);
    /// Of the frame that is read, counted from 1.
    [[nodiscard]] int frameNumber() const { return int(m_content->frames.size()); }

    QByteArrayView m_bytes;
    std::shared_ptr<Content> m_content = std::make_shared<Content>();
    ForeignFile::Remarks m_remarks;
    QString m_problem;

    int m_pixelBytes = 0; ///< of a pixel, as the file has it
    int m_frameCount = 0;
    int m_speed = 0; ///< milliseconds of frames that say none
    bool m_layersHaveOpacity = false;
    bool m_groupsHaveOpacity = false;
    std::vector<int> m_parents; ///< the layers that the last one is in, and itself
    QStringList m_hidden; ///< names of layers
    QHash<quint32, int> m_tileSets; ///< index by number; -1 for those in other files
    std::vector<std::pair<int, std::shared_ptr<const Content::TileCells>>> m_tileCells; ///< with their layer
    FilePalette m_palette;
    FilePalette m_oldPalette; ///< counts where there is no other
    int m_paletteCount = 0;
    qint64 m_memory = AsepriteFile::MaxUnpacked;
    qsizetype m_celCount = 0;
    int m_largestIndex = 0;
    QHash<quint64, Content::Cel> m_celOf; ///< by frame and layer
};
