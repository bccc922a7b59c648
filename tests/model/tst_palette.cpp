#include "model/palette.h"
#include "support/testmain.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <utility>

namespace {

QByteArray contents(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString &fileName, const QByteArray &bytes)
{
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

/// What a palette emits, in order, as "changed 3 #ff0000 1" and "edited 3 0000 e000".
class Listener
{
public:
    explicit Listener(Palette &palette)
    {
        QObject::connect(&palette, &Palette::colourChanged, &palette, [this](int index, QColor colour, bool priority) {
            emitted << QStringLiteral("changed %1 %2 %3").arg(index).arg(colour.name(QColor::HexArgb)).arg(priority);
        });
        QObject::connect(&palette, &Palette::colourEdited, &palette, [this](int index, quint16 before, quint16 after) {
            emitted << QStringLiteral("edited %1 %2 %3")
                           .arg(index)
                           .arg(int(before), 4, 16, QLatin1Char('0'))
                           .arg(int(after), 4, 16, QLatin1Char('0'));
        });
    }

    QStringList takeAll() { return std::exchange(emitted, {}); }

    QStringList emitted;
};

} // namespace

class TestPalette : public QObject
{
    Q_OBJECT

private slots:
    void startsBlackAndUnnamed();
    void readsWords_data();
    void readsWords();
    void quantises_data();
    void quantises();
    void announcesChangesAndEdits();
    void findsNearest();
    void writesFiles();
    void refusesFiles_data();
    void refusesFiles();
};

void TestPalette::startsBlackAndUnnamed()
{
    Palette palette;
    QCOMPARE(palette.name(), "untitled");
    QCOMPARE(palette.transparencyIndex(), -1);
    QVERIFY(!palette.id().isNull());
    QCOMPARE(palette.colours(), QList<QColor>(256, QColor(0, 0, 0)));
    QCOMPARE(palette.colourTable(), QList<QRgb>(256, 0xff000000));

    const QSignalSpy named(&palette, &Palette::nameChanged);
    palette.setName("untitled");
    QCOMPARE(named.count(), 0);
    palette.setName("cave");
    QCOMPARE(named.count(), 1);
    QCOMPARE(named.at(0).at(0), "cave");
}

void TestPalette::readsWords_data()
{
    QTest::addColumn<quint16>("word");
    QTest::addColumn<QColor>("colour");
    QTest::addColumn<bool>("priority");
    QTest::newRow("magenta in front") << quint16(0xe381) << QColor(255, 0, 255) << true;
    QTest::newRow("levels 1 2 3") << quint16(0x2901) << QColor(37, 73, 110) << false;
    QTest::newRow("levels 4 5 6") << quint16(0x9700) << QColor(146, 183, 219) << false;
    QTest::newRow("unused bits") << quint16(0x007e) << QColor(0, 0, 0) << false;
}

void TestPalette::readsWords()
{
    QFETCH(const quint16, word);
    QFETCH(const QColor, colour);
    Palette palette;
    palette.storeRawColour(7, word);
    QCOMPARE(palette.rawColour(7), word);
    QCOMPARE(palette.colour(7), colour);
    QTEST(palette.priority(7), "priority");

    palette.setTransparencyIndex(7);
    QCOMPARE(palette.colour(7).rgba(), colour.rgb() & 0xffffff);
    QCOMPARE(palette.colours().at(7).alpha(), 0);
    QCOMPARE(palette.colourTable().at(7), colour.rgb());
}

void TestPalette::quantises_data()
{
    QTest::addColumn<int>("component");
    QTest::addColumn<int>("snapped");
    QTest::addColumn<int>("level");
    // both sides of every threshold between levels, then of the last steps of the snap grid
    for (const auto &[last, level] : {std::pair{24, 0}, {56, 1}, {88, 2}, {120, 3}, {152, 4}, {184, 5}, {216, 6}}) {
        QTest::addRow("%d", last) << last << last - 8 << level;
        QTest::addRow("%d", last + 1) << last + 1 << last + 8 << level + 1;
    }
    QTest::addRow("0") << 0 << 0 << 0;
    QTest::addRow("8") << 8 << 0 << 0;
    QTest::addRow("9") << 9 << 16 << 0;
    QTest::addRow("219") << 219 << 224 << 7;
    QTest::addRow("247") << 247 << 240 << 7;
    QTest::addRow("248") << 248 << 255 << 7;
    QTest::addRow("255") << 255 << 255 << 7;
}

void TestPalette::quantises()
{
    QFETCH(const int, component);
    QFETCH(const int, snapped);
    QFETCH(const int, level);
    QCOMPARE(Palette::snapColour(QColor(component, 0, 255, 12)), QColor(snapped, 0, 255));
    QCOMPARE(Palette::snapColour(QColor(0, component, component)), QColor(0, snapped, snapped));

    Palette palette;
    palette.setColour(0, QColor(component, component, component), true);
    QCOMPARE(palette.rawColour(0), quint16(level << 13 | level << 10 | level >> 1 << 8 | 0x80 | (level & 1)));
}

void TestPalette::announcesChangesAndEdits()
{
    Palette palette;
    palette.loadStandardNext();
    palette.setTransparencyIndex(5);
    Palette copy;
    Listener listener(copy);
    copy.copyColours(palette);
    QVERIFY(listener.emitted.isEmpty());

    // the signal carries the snapped colour, not the expanded one (219 would be 255)
    copy.setColour(3, QColor(219, 219, 219, 9), true);
    copy.setColour(3, QColor(255, 255, 255), true);
    QCOMPARE(listener.takeAll(), QStringList({"changed 3 #ffe0e0e0 1", "edited 3 0301 ff81"}));

    copy.setTransparencyIndex(5);
    copy.setRawColour(5, 0xe0fe);
    copy.setRawColour(5, 0xe0fe);
    QCOMPARE(listener.takeAll(), QStringList("changed 5 #00ff0000 1"));
    QCOMPARE(copy.rawColour(5), 0xe0fe);

    for (int i = 2; i < 256; ++i)
        copy.storeRawColour(i, 0x1c00);
    copy.fill(QColor(0, 255, 0), false);
    QCOMPARE(
        listener.takeAll(),
        QStringList({"changed 0 #ff00ff00 0", "edited 0 0000 1c00", "changed 1 #ff00ff00 0", "edited 1 0101 1c00"}));
    copy.fill(QColor(0, 255, 0), false);
    QVERIFY(listener.emitted.isEmpty());
}

void TestPalette::findsNearest()
{
    Palette palette;
    for (const int white : {5, 9, 200})
        palette.storeRawColour(white, 0xff01);
    palette.storeRawColour(2, 0x2000); // red 37
    palette.storeRawColour(20, 0x4000); // red 73
    QCOMPARE(palette.nearestIndex(QColor(255, 255, 255)), 5);
    QCOMPARE(palette.nearestIndex(QColor(250, 240, 251)), 5);
    QCOMPARE(palette.nearestIndex(QColor(55, 0, 0)), 2); // halfway between 37 and 73
    QCOMPARE(palette.nearestIndex(QColor(56, 0, 0)), 20);

    // an opaque colour never equals the transparent entry, which still wins by distance
    palette.setTransparencyIndex(5);
    QCOMPARE(palette.nearestIndex(QColor(255, 255, 255)), 9);
    QCOMPARE(palette.nearestIndex(QColor(250, 240, 251)), 5);
    QCOMPARE(palette.nearestIndex(QColor(255, 255, 255, 0)), 5);
}

void TestPalette::writesFiles()
{
    const QTemporaryDir folder;
    Palette palette;
    palette.loadStandardNext();
    palette.storeRawColour(1, 0xe3ff); // bits that mean nothing are kept
    for (const auto &[name, size] : {std::pair("a.pal", 512), {"a.nxp", 512}, {"a.npl", 513}, {"A.NPL", 513}}) {
        const QString fileName = folder.filePath(name);
        write(fileName, QByteArray(9999, 'x'));
        QVERIFY(palette.exportData(fileName));
        const QByteArray bytes = contents(fileName);
        QCOMPARE(bytes.size(), size);
        QCOMPARE(bytes.left(10).toHex(), "0000e3ff020103010400");
        QCOMPARE(bytes.mid(510), QByteArray("\xff\x01\x00", size - 510));

        Palette read;
        Listener listener(read);
        QVERIFY(read.importData(fileName));
        QVERIFY(listener.emitted.isEmpty());
        for (int i = 0; i < 256; ++i)
            QCOMPARE(read.rawColour(i), palette.rawColour(i));
    }
    QVERIFY(!palette.exportData(folder.path()));
    QVERIFY(!palette.exportData(folder.filePath("none/a.pal")));
    if (QFile::exists("/dev/full")) // a full disk shows only when the bytes leave the buffer
        QVERIFY(!palette.exportData("/dev/full"));

    palette.setName("Level 1.npl");
    QVERIFY(palette.exportToDirectory(folder.path()));
    QCOMPARE(contents(folder.filePath("Level 1.npl_palette.bin")).size(), 512);
    palette.setName("../out");
    QVERIFY(QDir(folder.path()).mkdir("inner"));
    QVERIFY(!palette.exportToDirectory(folder.filePath("inner")));
    QVERIFY(!QFile::exists(folder.filePath("out_palette.bin")));
}

void TestPalette::refusesFiles_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("size"); // -1: no file, -2: a folder
    QTest::newRow("missing") << "a.pal" << -1;
    QTest::newRow("folder") << "a.pal" << -2;
    QTest::newRow("empty") << "a.pal" << 0;
    QTest::newRow("short") << "a.pal" << 511;
    QTest::newRow("npl layout, other name") << "a.pal" << 513;
    QTest::newRow("pal layout, npl name") << "a.npl" << 512;
    QTest::newRow("long npl") << "a.npl" << 514;
}

void TestPalette::refusesFiles()
{
    QFETCH(const QString, name);
    QFETCH(const int, size);
    const QTemporaryDir folder;
    const QString fileName = folder.filePath(name);
    if (size == -2)
        QVERIFY(QDir(folder.path()).mkdir(name));
    else if (size >= 0)
        write(fileName, QByteArray(size, 'x'));

    Palette palette;
    palette.loadStandardNext();
    QVERIFY(!palette.importData(fileName));
    QCOMPARE(palette.rawColour(0), 0x0000);
    QCOMPARE(palette.rawColour(255), 0xff01);
}

QUENMORA_TEST_MAIN(TestPalette)
#include "tst_palette.moc"
