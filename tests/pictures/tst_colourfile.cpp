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
        addColumns<QByteArray, Rgbs, int, QString>("bytes", "colours", "transparent", "name");
        const Rgbs two{0xff002449, 0xffffffff};
        const auto add = [](const char *row, const QByteArray &bytes, const Rgbs &colours, int transparent = -1,
                            const QString &name = {}) {
            QTest::newRow(row) << bytes << colours << transparent << name;
        };
        add("gpl", Gimp, two, -1, "Café");
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
        const TemporaryFolder folder;
        const auto file = ColourFile::read(folder("palette.txt", bytes));
        QVERIFY2(file, qPrintable(file.reason()));
        QTEST(file->colours, "colours");
        QTEST(file->transparentIndex, "transparent");
        QTEST(file->name, "name");
        const bool isText = !bytes.contains('\7'); // which is in all entries of the .act file above
        QVERIFY(!isText || ColourFile::recognises(bytes.left(20)));
    }

    void damageIsTold()
    {
        const auto tells = [](const QString &reason, const QByteArray &bytes) {
            QCOMPARE(ColourFile::read(bytes).reason(), reason);
        };
        for (const QByteArray &other : {QByteArray(), QByteArray(512, '\1')})
            tells("It is no palette of the forms .gpl, .pal (JASC), .hex or .act", other);
        tells("It has no colours", "GIMP Palette\n#\n");
        tells("Line 3: “1 2 256” is no colour, which is 3 numbers from 0 to 255", "GIMP Palette\n#\n1 2 256\n");
        tells("Line 3: “one two three” is no colour, which is 3 numbers from 0 to 255",
              "GIMP Palette\r\n\r\none two three\r\n");
        tells("Line 2: “0200” stands where “0100” does", "JASC-PAL\n0200\n");
        tells("Line 3: “many” is no number of colours", "JASC-PAL\n0100\nmany\n");
        tells("Line 5: “1 2” is no colour, which is 3 numbers from 0 to 255", "JASC-PAL\n0100\n2\n1 2 3\n1 2\n");
        tells("It says that it has 2 colours, and has 1", "JASC-PAL\n0100\n2\n1 2 3\n");
        tells("Line 2: “01234” is no colour of six hexadecimal digits", "012345\n01234\n");
        tells("It says that it has 257 colours; there is room for 256", act(QByteArray("\x01\x01\xff\xff", 4)));
        tells("Its transparent index is 16, and it has 16 colours", act(QByteArray("\x00\x10\x00\x10", 4)));
        tells("It has 2 MiB; at most 1 MiB can be read", QByteArray((1 << 20) + 1, 'a'));
    }
};

QUENMORA_TEST_MAIN(TestColourFile)
#include "tst_colourfile.moc"
