#include "model/tilemap.h"
#include "store/keptblocks.h"
#include "store/packedmember.h"
#include "store/pngmember.h"
#include "store/projectdocument.h"
#include "store/zipfile.h"

#include "support/modeltools.h"
#include "support/sampleproject.h"
#include "support/testmain.h"

#include <QtTest>

#include <zlib.h>

namespace {

using Cells = ProjectMember::Cells;

/// Rows of cells of which one in so many is any cell, the others like the one to the left in the row above.
Cells cellsOf(QSize size, int repeated, quint32 seed)
{
    QRandomGenerator random(seed);
    Cells cells{size, TileMap::Rows(size.height(), TileMap::Row(size.width())),
                QUuid(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11)};
    for (int y = 0; repeated > 0 && y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            TileMap::TileData &cell = cells.rows[y][x];
            if (y > 0 && x > 0 && random.bounded(repeated) > 0)
                cell = cells.rows[y - 1][x - 1];
            else
                cell = {random.bounded(512),   random.bounded(2) > 0, false,
                        random.bounded(3) > 0, random.bounded(16),    true};
        }
    }
    return cells;
}

QJsonObject documentOf(int entries)
{
    QJsonObject document;
    for (int i = 0; i < entries; ++i)
        document.insert(QString::number(i * 7919), QJsonObject{{"index", i % 10}, {"flip", i % 3 == 0}});
    return document;
}

PackedMember packed(const ProjectMember &member, KeptBlocks &kept)
{
    MemberPacker packer(member, kept);
    while (!packer.atEnd())
        packer.step();
    return packer.packed();
}

/// What any reader of zip archives makes of a member: one stream that ends with the last byte.
QByteArray inflated(const PackedMember &member)
{
    QByteArray stream;
    for (const PackedBlock &block : member.blocks)
        stream += block.deflated;
    stream += PackedBlock::EndOfStream;
    QByteArray content(qsizetype(member.size()) + 1, '\0');
    z_stream reader{};
    inflateInit2(&reader, -MAX_WBITS);
    reader.next_in = reinterpret_cast<Bytef *>(stream.data());
    reader.avail_in = uInt(stream.size());
    reader.next_out = reinterpret_cast<Bytef *>(content.data());
    reader.avail_out = uInt(content.size());
    const bool whole = inflate(&reader, Z_FINISH) == Z_STREAM_END && reader.avail_in == 0;
    content.truncate(qsizetype(reader.total_out));
    inflateEnd(&reader);
    return whole ? content : "no whole stream: " + content;
}

/// The numbers of the blocks that are others than before.
QList<qsizetype> changedBlocks(const PackedMember &before, const PackedMember &after)
{
    QList<qsizetype> changed;
    for (qsizetype i = 0; i < after.blocks.size(); ++i) {
        const bool isKept = i < before.blocks.size()
            && before.blocks[i].deflated.constData() == after.blocks[i].deflated.constData(); // not made again
        if (!isKept)
            changed.append(i);
    }
    return changed;
}

} // namespace

class TestPacking : public QObject
{
    Q_OBJECT

private slots:
    void membersAreOneStreamOfTheirContent_data()
    {
        QTest::addColumn<ProjectMember>("member");
        QTest::addColumn<QByteArray>("content"); // as other code makes it
        const auto add = [](const char *name, const Cells &cells) {
            TileMap map(0, 0);
            map.restore(cells.rows);
            QByteArray content = map.serialise({{0, 0}, cells.size});
            content.replace(content.size() - 16, 16, cells.tileSetId.toRfc4122());
            QTest::newRow(name) << ProjectMember{"tilemap/1", cells} << content;
        };
        add("no cells", {{0, 0}, {}, {}});
        add("one cell", cellsOf({1, 1}, 1, 1));
        add("blank", cellsOf({300, 400}, 0, 1));
        add("level", cellsOf({700, 300}, 16, 2));
        add("repeating level", cellsOf({333, 500}, 1000, 3));
        add("narrow", cellsOf({3, 20'000}, 8, 4));
        add("any cells", cellsOf({500, 120}, 1, 5));
        add("rows longer than deflate looks back", cellsOf({5000, 12}, 50, 6));
        add("rows longer than a block", cellsOf({30'000, 3}, 4, 7));
        for (const int entries : {0, 10, 20'000})
            QTest::addRow("document %d", entries)
                << ProjectMember{"project.json", documentOf(entries)} << QJsonDocument(documentOf(entries)).toJson();
        for (const QImage &image : {SampleProject::gradient({8, 8}), SampleProject::noise({640, 1000})})
            QTest::addRow("picture %d", image.height())
                << ProjectMember{"scratch.png", image} << PngMember::encode(image);
    }

    void membersAreOneStreamOfTheirContent()
    {
        QFETCH(ProjectMember, member);
        QFETCH(QByteArray, content);
        KeptBlocks kept;
        const PackedMember first = packed(member, kept);
        QVERIFY(inflated(first) == content);
        QCOMPARE(first.size(), content.size());
        QCOMPARE(first.checksum(),
                 crc32(0, reinterpret_cast<const Bytef *>(content.constData()), uInt(content.size())));
        QVERIFY(first.packedSize() <= content.size() * 1.001 + 100);
        QVERIFY(member.bytes() == content);

        const PackedMember again = packed(member, kept);
        QCOMPARE(changedBlocks(first, again), {});
        QCOMPARE(again.key(), first.key());
        for (MemberBlocks blocks(member, &kept); !content.isEmpty(); content.remove(0, blocks.next().content().size()))
            QVERIFY(!blocks.atEnd());

        QVERIFY(inflated(PackedMember::pack("bytes", member.bytes())) == member.bytes());
    }

    void cellsThatRepeatTakeFewBytes()
    {
        const ProjectMember member{"tilemap/1", cellsOf({700, 300}, 50, 2)};
        const QByteArray content = member.bytes();
        const qsizetype best = qCompress(content, Z_BEST_COMPRESSION).size();
        QVERIFY2(double(PackedMember::pack("", content).packedSize()) < 1.1 * double(best), "not near zlib's best");
    }

    void deflatesWhatChangedAlone()
    {
        KeptBlocks kept;
        Cells cells = cellsOf({700, 300}, 16, 1); // rows of 8400 bytes, 31 of them in a block
        const auto pack = [&] {
            const PackedMember result = packed({"tilemap/1", cells}, kept);
            kept.keepOnly({result});
            return result;
        };
        const PackedMember first = pack();
        QCOMPARE(first.blocks.size(), 10);
        PackedMember before = first;
        for (const auto &[row, changed] : {std::pair{40, QList<qsizetype>{1}}, {60, {1, 2}}, {0, {0}}, {299, {9}}}) {
            cells.rows[row][650].index ^= 1;
            const PackedMember after = pack();
            QCOMPARE(changedBlocks(before, after), changed); // and the one that looks back at it
            QVERIFY(inflated(after) == ProjectMember({"tilemap/1", cells}).bytes());
            QVERIFY(!(after.key() == before.key()));
            QVERIFY(kept.memory() <= after.packedSize());
            before = after;
        }
        for (const int row : {40, 60, 0, 299})
            cells.rows[row][650].index ^= 1;
        const PackedMember undone = pack();
        QCOMPARE(undone.key(), first.key());
        QCOMPARE(changedBlocks(first, undone), (QList<qsizetype>{0, 1, 2, 9})); // which went in the meantime
        QCOMPARE(valuesOf(undone.blocks, &PackedBlock::deflated), valuesOf(first.blocks, &PackedBlock::deflated));
    }

    void tellsPicturesApartByAllThatIsStored()
    {
        const QImage first = SampleProject::gradient({6, 4}); // rows of which have bytes to spare
        QImage pixel = first;
        pixel.setPixel(5, 3, 99);
        QImage colour = first;
        colour.setColor(255, qRgb(1, 2, 3));
        QImage fewer = first;
        fewer.setColorCount(255);
        QSet<quint64> keys;
        for (const QImage &image : {first, pixel, colour, fewer, first.copy(0, 0, 6, 3),
                                    SampleProject::gradient({4, 6}), first.convertToFormat(QImage::Format_RGB32)})
            keys.insert(KeptBlocks::pictureKey(image).low);
        QCOMPARE(keys.size(), 7);
        QImage spare = first.copy();
        for (int y = 0; y < spare.height(); ++y)
            spare.scanLine(y)[7] = uchar(y + 1); // behind the pixels
        spare.setText("Comment", "from elsewhere");
        QCOMPARE(KeptBlocks::pictureKey(spare), KeptBlocks::pictureKey(first));
        QCOMPARE(PngMember::encode(spare), PngMember::encode(first));
    }

    void aSnapshotStaysAsTheProjectWas()
    {
        Project project;
        SampleProject::fill(project);
        const ProjectMembers before = serializeProject(project, true);
        const ProjectSnapshot snapshot = snapshotOf(project, true);
        auto edit = [&, step = 0]() mutable { // what changes cells, pixels and settings in their places
            ++step;
            for (const auto &map : project.maps())
                map->setTile({step % 2, step % 3}, {.index = step, .used = true});
            for (const auto &tiles : project.tileSets())
                tiles->setTileImage(0, plainImage({8, 8}, step));
            for (const auto &bank : project.spriteBanks())
                bank->setImage(0, plainImage({16, 16}, step));
            project.palettes().first()->setRawColour(step, quint16(step));
            for (const auto &image : project.images())
                image->setImage(SampleProject::gradient({256, 192 - step}));
            project.setScratchImage(SampleProject::gradient({256, 192 - step}));
            project.setName(QString::number(step));
        };
        KeptBlocks kept;
        ProjectMembers read;
        edit();
        for (const ProjectMember &member : snapshot) {
            MemberPacker packer(member, kept);
            for (; !packer.atEnd(); packer.step())
                edit();
            read.insert(member.name, inflated(packer.packed()));
        }
        QCOMPARE(read.keys(), before.keys());
        for (const QString &name : before.keys())
            QVERIFY2(read[name] == before[name] && serializeProject(project, true)[name] != before[name],
                     qPrintable(name));
        QVERIFY(std::is_sorted(snapshot.cbegin(), snapshot.cend(),
                               [](const ProjectMember &a, const ProjectMember &b) { return a.name < b.name; }));
    }
};

QUENMORA_TEST_MAIN(TestPacking)
#include "tst_packing.moc"
