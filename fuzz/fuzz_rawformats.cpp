// The readers of the hardware's raw formats and of the clipboard. The first byte of an input chooses the
// format, the rest is the file.

#include "model/map.h"
#include "model/palette.h"
#include "model/pngreader.h"
#include "model/project.h"
#include "model/spritebank.h"
#include "model/tilemap.h"
#include "model/tileset.h"

#include <QBuffer>
#include <QFile>
#include <QLoggingCategory>
#include <QMimeData>
#include <QTemporaryDir>

namespace {

constexpr int FormatCount = 8;

QString written(const QString &name, const QByteArray &bytes)
{
    static const QTemporaryDir folder;
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write the input");
    return file.fileName();
}

void readClipboard(Map &map, const QByteArray &bytes)
{
    QMimeData clipboard;
    clipboard.setData(QStringLiteral("quenmora-map-toNextData"), bytes);
    map.pasteTiles({-1, 1}, &clipboard);
    (void)TileMap::readSelection(&clipboard);
}

QImage decoded(const QByteArray &bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    PngReader reader(buffer);
    return reader.readHead() && reader.byteCount() <= 1 << 26 ? reader.read() : QImage();
}

void readFormat(int format, const QByteArray &bytes)
{
    Project project;
    const auto palette = project.createPalette(CreateAction::DefaultNext, QStringLiteral("palette"));
    const auto tiles = project.createTileSet(QStringLiteral("tiles"), palette->id(), 16);
    const auto bank = project.createSpriteBank(Quenmora::EightBit, QStringLiteral("bank"), palette->id());
    const auto map = project.createMap(QStringLiteral("map"), tiles->id(), {4, 4});
    switch (format) {
    case 0:
        (void)palette->importData(written(QStringLiteral("a.pal"), bytes));
        break;
    case 1:
        (void)palette->importData(written(QStringLiteral("a.npl"), bytes));
        break;
    case 2:
        (void)tiles->importNxt(written(QStringLiteral("a.nxt"), bytes));
        break;
    case 3:
        (void)tiles->importZXFont(2, 1, 0, 3, written(QStringLiteral("a.ch8"), bytes));
        break;
    case 4:
        (void)bank->importSpr(written(QStringLiteral("a.spr"), bytes));
        break;
    case 5: // the first half is the map, the second half its blocks
        (void)map->importNxm(written(QStringLiteral("a.nxm"), bytes.first(bytes.size() / 2)),
                             written(QStringLiteral("a.nxb"), bytes.sliced(bytes.size() / 2)));
        break;
    case 6:
        readClipboard(*map, bytes);
        break;
    case 7:
        bank->setWholeImage(decoded(bytes));
        break;
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uchar *bytes, size_t size)
{
    if (size > 0)
        readFormat(bytes[0] % FormatCount, QByteArray(reinterpret_cast<const char *>(bytes) + 1, qsizetype(size) - 1));
    return 0;
}
