#include "pictures/colourfile.h"

#include "support/modeltools.h"
#include "support/testmain.h"

#include <QTest>

namespace {

using Rgbs = QList<QRgb>;

/// An .act file whose entry i is (i, 255 - i, 7).
QByteArray act(const QByteArray &tail = {})
{
    QByteArray bytes;
    for (int i = 0; i < 256; ++i)
        bytes += QByteArray(1, char(i)) + char(255 - i) + char(7);
    return bytes + tail;
}

Rgbs actColours(int count)
{
    Rgbs colours;
    for (int i = 0; i < count; ++i)
        colours.append(qRgb(i, 255 - i, 7));
    return colours;
}

const QByteArray Gimp = "GIMP Palette\nName: Caf\xc3\xa9\nColumns: 4\n# a comment\n  0  36 73\tBlue\n\n255 255 255\n";
const QByteArray Jasc = "JASC-PAL\r\n0100\r\n2\r\n0 36 73\r\n255 255 255\r\n\r\n";
const QByteArray Hex = "002449\r\nFFffFF\r\n";

} // namespace

class TestColourFile : public QObject
{
    Q_OBJECT

private slots:
    void everyFormIsRead_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<Rgbs>("colours");
        QTest::addColumn<int>("transparent");
        QTest::addColumn<QString>("name");
        const Rgbs two{0xff002449, 0xffffffff};
        const auto add = [](const char *row, const QByteArray &bytes, const Rgbs &colours, int transparent = -1,
                            const QString &name = {}) {
            QTest::newRow(row) << bytes << colours << transparent << name;
        };
        add("gpl", Gimp, two, -1, QStringLiteral("Café"));
        add("gpl with alpha", "\xef\xbb\xbfGIMP Palette\rChannels: RGBA\r1 2 3 4 name\r", {0x04010203});
        add("pal", Jasc, two);
        add("pal of one line end", "JASC-PAL\n0100\n1\n1 2 3 255", {0xff010203});
        add("hex", Hex, two);
        add("hex with signs", "\n#002449\n\n#ffffff", two);
        add("hex as long as act", QByteArray("002449\r\n").repeated(96), Rgbs(96, 0xff002449));
        add("act", act(), actColours(256));
        add("act with count", act(QByteArray("\x00\x10\x00\x0f", 4)), actColours(16), 15);
        add("act with all, and no index", act(QByteArray("\x01\x00\xff\xff", 4)), actColours(256));
        add("act that begins with digits", "123456\n" + act().sliced(7),
            Rgbs{0xff313233, 0xff343536, 0xff0afd07} + actColours(256).sliced(3));
    }

    void everyFormIsRead()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(Rgbs, colours);
        QFETCH(int, transparent);
        QFETCH(QString, name);
        const TemporaryFolder folder;
        const auto file = ColourFile::read(folder("palette.txt", bytes));
        QVERIFY2(file, qPrintable(file.reason()));
        QCOMPARE(file->colours, colours);
        QCOMPARE(file->transparentIndex, transparent);
        QCOMPARE(file->name, name);
        const bool isText = !bytes.contains('\7'); // which is in all entries of the .act file above
        QVERIFY(!isText || ColourFile::recognises(bytes.left(20)));
    }

    void damageIsTold_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("reason");
        const auto add = [](const char *row, const QByteArray &bytes, const char *reason) {
            QTest::newRow(row) << bytes << QString::fromUtf8(reason);
        };
        add("nothing", "", "It is no palette of the forms .gpl, .pal (JASC), .hex or .act");
        add("raw", QByteArray(512, '\1'), "It is no palette of the forms .gpl, .pal (JASC), .hex or .act");
        add("gpl without colours", "GIMP Palette\n#\n", "It has no colours");
        add("gpl beyond", "GIMP Palette\n#\n1 2 256\n",
            "Line 3: “1 2 256” is no colour, which is 3 numbers from 0 to 255");
        add("gpl with words", "GIMP Palette\r\n\r\none two three\r\n",
            "Line 3: “one two three” is no colour, which is 3 numbers from 0 to 255");
        add("pal version", "JASC-PAL\n0200\n", "Line 2: “0200” stands where “0100” does");
        add("pal count", "JASC-PAL\n0100\nmany\n", "Line 3: “many” is no number of colours");
        add("pal colour", "JASC-PAL\n0100\n2\n1 2 3\n1 2\n",
            "Line 5: “1 2” is no colour, which is 3 numbers from 0 to 255");
        add("pal with fewer", "JASC-PAL\n0100\n2\n1 2 3\n", "It says that it has 2 colours, and has 1");
        add("hex", "012345\n01234\n", "Line 2: “01234” is no colour of six hexadecimal digits");
        add("act count", act(QByteArray("\x01\x01\xff\xff", 4)),
            "It says that it has 257 colours; there is room for 256");
        add("act index", act(QByteArray("\x00\x10\x00\x10", 4)), "Its transparent index is 16, and it has 16 colours");
        add("a book", QByteArray((1 << 20) + 1, 'a'), "It has 2 MiB; at most 1 MiB can be read");
    }

    void damageIsTold()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, reason);
        QCOMPARE(ColourFile::read(bytes).reason(), reason);
    }
};

QUENMORA_TEST_MAIN(TestColourFile)
#include "tst_colourfile.moc"
