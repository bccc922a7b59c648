#include "model/pngreader.h"

#include "support/endlessdevice.h"
#include "support/modeltools.h"
#include "support/stderrwatch.h"
#include "support/testmain.h"

#include <QtTest>

#include <zlib.h>

namespace {

QByteArray number(quint32 value)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

QByteArray chunk(const QByteArray &type, const QByteArray &content)
{
    const QByteArray body = type + content;
    return number(quint32(content.size())) + body
        + number(quint32(crc32(0, reinterpret_cast<const Bytef *>(body.constData()), uInt(body.size()))));
}

struct Head
{
    quint32 width;
    quint32 height;
    char depth;
    char type;
    bool interlaced = false;
};

QByteArray start(const Head &head)
{
    return "\x89PNG\r\n\x1a\n"
        + chunk("IHDR",
                number(head.width) + number(head.height) + head.depth + head.type + '\0' + '\0'
                    + char(head.interlaced));
}

QByteArray packed(const QByteArray &rows)
{
    return qCompress(rows).sliced(4); // a length that is Qt's own precedes
}

const QByteArray End = chunk("IEND", {});

QImage read(const QByteArray &png)
{
    QBuffer buffer;
    buffer.setData(png);
    buffer.open(QIODevice::ReadOnly);
    PngReader reader(buffer);
    return reader.readHead() ? reader.read() : QImage();
}

} // namespace

class TestPngReader : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLoggingCategory::setFilterRules("qt.gui.imageio=false"); }

    /// Random rows of every kind of PNG, each row with a random filter, as libpng reads them.
    void readsWhatLibpngReads_data()
    {
        QTest::addColumn<char>("type");
        QTest::addColumn<char>("depth");
        for (const auto &[type, depths] : {std::pair<char, QByteArray>{0, "\1\2\4\x8\x10"},
                                           {2, "\x8\x10"},
                                           {3, "\1\2\4\x8"},
                                           {4, "\x8\x10"},
                                           {6, "\x8\x10"}}) {
            for (const char depth : depths)
                QTest::addRow("type %d, %d bits", type, depth) << type << depth;
        }
    }

    void readsWhatLibpngReads()
    {
        QFETCH(char, type);
        QFETCH(char, depth);
        QRandomGenerator random(quint32(type * 100 + depth));
        const int channels = type == 2 ? 3 : type == 4 ? 2 : type == 6 ? 4 : 1;
        const quint32 width = 301; // rows that make more than one block
        const quint32 height = 307;
        QByteArray rows;
        for (quint32 y = 0; y < height; ++y)
            rows += char(random.bounded(5)) + noise((int(width) * channels * depth + 7) / 8, random.generate());
        const QByteArray pixels = packed(rows);
        const QByteArray colours = type == 3 ? chunk("PLTE", noise(3 << depth, random.generate())) : QByteArray();
        for (const QByteArray &transparency :
             {QByteArray(), chunk("tRNS", noise(type == 2 ? 6 : 2, random.generate()))}) {
            const QByteArray png = start({width, height, depth, type}) + chunk("tEXt", "aside") + colours + transparency
                + chunk("IDAT", pixels.first(7)) + chunk("IDAT", {}) + chunk("IDAT", pixels.sliced(7)) + End;
            QImage expected;
            {
                const StderrWatch complaints;
                expected = QImage::fromData(png, "png");
            }
            QVERIFY(!expected.isNull());
            const QImage image = read(png);
            QCOMPARE(image.format(), expected.format());
            QCOMPARE(image.colorTable(), expected.colorTable());
            // libpng leaves a part of 64-bit pixels as it was in memory
            QVERIFY(image == expected || QImage::fromData(png, "png") != expected);
            if (depth == 8 && channels == 1)
                QCOMPARE(indices(image), indices(expected));
        }
        // one pixel of an interlaced picture, which has one pass of seven
        const QByteArray pixel = packed('\0' + noise((channels * depth + 7) / 8, random.generate()));
        const QByteArray interlaced = start({1, 1, depth, type, true}) + colours + chunk("IDAT", pixel) + End;
        QCOMPARE(read(interlaced), QImage::fromData(interlaced, "png"));
    }

    void refusesDamageWithoutAWordOnStderr()
    {
        StderrWatch output;
        QByteArray rows;
        for (int y = 0; y < 4; ++y)
            rows += char(y) + QByteArray("\1\2\3\4");
        const QByteArray colours = chunk("PLTE", QByteArray(15, 'c'));
        for (const char type : {char(0), char(3), char(4)}) { // read here, read here, left to libpng
            const QByteArray head = start({type == 4 ? 2U : 4U, 4, 8, type}) + (type == 3 ? colours : QByteArray());
            const QByteArray whole = head + chunk("IDAT", packed(rows));
            QVERIFY(!read(whole + End).isNull());
            for (qsizetype at = 0; at < whole.size(); ++at) {
                QVERIFY2(read(whole.first(at)).isNull(), qPrintable(QString::number(at)));
                QByteArray flipped = whole + End;
                flipped[at] ^= 1 << at % 8;
                QVERIFY2(read(flipped).isNull(), qPrintable(QString::number(at)));
            }
            QByteArray badFilter = rows;
            badFilter[15] = 5;
            for (const QByteArray &bytes :
                 {head + chunk("IDAT", packed(badFilter)) + End, head + chunk("IDAT", packed(rows.chopped(1))) + End,
                  head + chunk("IDAT", rows) + End, head + chunk("ABCD", {}) + chunk("IDAT", packed(rows)) + End,
                  head + End, head + colours + colours + chunk("IDAT", packed(rows))})
                QVERIFY(read(bytes).isNull() || (type != 3 && bytes.count("PLTE") == 2));
        }
        for (const Head &impossible :
             {Head{0, 1, 8, 3}, {1, 1'000'001, 8, 3}, {1, 1, 3, 0}, {1, 1, 16, 3}, {1, 1, 4, 2}, {1, 1, 8, 5}})
            QVERIFY(read(start(impossible) + colours + chunk("IDAT", packed(QByteArray(99, '\0'))) + End).isNull());
        QCOMPARE(output.written(), QByteArray());
    }

    void readsNoFartherThanAPictureCanReach()
    {
        const QByteArray head = start({4, 4, 8, 0});
        const QByteArray rows = packed(QByteArray(20, '\0'));
        const std::tuple<QByteArray, qint64, bool> cases[] = {
            {head + chunk("IDAT", rows) + End, 1 << 17, true},
            {head + number(0x7FFFFFFF) + "IDAT" + rows, 1 << 17, true}, // pixels enough, and zeros after them
            {head + number(0x7FFFFFFF) + "teXt", 9 << 20, false},
            {head + number(0x7FFFFFFF) + "IDAT", 1 << 17, false},
        };
        for (const auto &[bytes, most, good] : cases) {
            qint64 taken = 0;
            EndlessDevice device(bytes, taken);
            PngReader reader(device);
            QVERIFY(reader.readHead());
            QCOMPARE(taken, head.size());
            QCOMPARE(!reader.read().isNull(), good);
            QVERIFY2(taken < most, qPrintable(QString::number(taken)));
        }
    }
};

QUENMORA_TEST_MAIN(TestPngReader)
#include "tst_pngreader.moc"
