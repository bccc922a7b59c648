#include "support/modeltools.h"
#include "support/testmain.h"

#include "model/palette.h"
#include "pictures/machinecolours.h"

#include <array>

namespace {

using Levels = std::array<int, 8>;

constexpr Levels Rounded{0, 36, 73, 109, 146, 182, 219, 255};
constexpr Levels RoundedUp{0, 37, 73, 110, 146, 183, 219, 255};

int moved(int component, int by)
{
    return std::clamp(component + by, 0, 255);
}

/// All 512 colours as 32 × 16 pixels: red by eighths of the row, green by rows, blue by pixels.
QImage everyColour(const Levels &shown, int by)
{
    return pictureOf({32, 16}, QImage::Format_ARGB32, [&shown, by](int number) {
        const auto component = [&](int shift) { return moved(shown[size_t(number >> shift & 7)], by); };
        return qRgb(component(6), component(3), component(0));
    });
}

quint16 expectedWord(int number)
{
    return quint16((number >> 1) << 8 | (number & 1)); // RRRGGGBB, 0000000B
}

} // namespace

class TestMachineColours : public QObject
{
    Q_OBJECT

private slots:
    void everyColourKeepsItsWord()
    {
        for (const auto &[shown, by] :
             {std::pair(Rounded, -2), {Rounded, 0}, {Rounded, 2}, {RoundedUp, -2}, {RoundedUp, 0}, {RoundedUp, 2}}) {
            QImage picture = everyColour(shown, by);
            for (int number = 0; number < 512; ++number)
                QCOMPARE(MachineColours::wordOf(picture.pixel(number % 32, number / 32)), expectedWord(number));
            QVERIFY(MachineColours::areIn(picture));
            // what is made of the kept picture by the operations that quantise has the words as well
            Palette palette;
            const QImage kept = MachineColours::kept(picture);
            for (int number = 0; number < 512; ++number) {
                const QRgb colour = kept.pixel(number % 32, number / 32);
                palette.setColour(number % 256, QColor::fromRgb(colour), false);
                QCOMPARE(palette.rawColour(number % 256), expectedWord(number));
                QCOMPARE(MachineColours::shown(colour), palette.colourTable().at(number % 256));
            }
            // indices and clear pixels: what is not seen does not count
            picture.setPixel(0, 0, qRgba(50, 60, 70, 127));
            QVERIFY(MachineColours::areIn(picture));
            QVERIFY(!MachineColours::areIn(picture.convertToFormat(QImage::Format_RGB32)));
            QImage indexed(2, 1, QImage::Format_Indexed8);
            indexed.setColorTable({qRgb(moved(shown[6], by), 0, 0), qRgb(50, 0, 0), qRgba(50, 0, 0, 0)});
            indexed.setPixel(0, 0, 0);
            indexed.setPixel(1, 0, 2);
            QVERIFY(MachineColours::areIn(indexed));
            QCOMPARE(MachineColours::kept(indexed).pixel(0, 0), qRgb(192, 0, 0));
            indexed.setPixel(1, 0, 1);
            QVERIFY(!MachineColours::areIn(indexed));
        }
    }

    void otherColoursAreNotTheMachines()
    {
        for (int component = 0; component < 256; ++component) {
            const auto near = [component](int level) { return qAbs(level - component) <= 2; };
            const bool expected = std::any_of(Rounded.cbegin(), Rounded.cend(), near)
                || std::any_of(RoundedUp.cbegin(), RoundedUp.cend(), near);
            QCOMPARE(MachineColours::wordOf(qRgb(component, 0, 255)).has_value(), expected);
        }
        QVERIFY(!MachineColours::areIn({}));
    }
};

QUENMORA_TEST_MAIN(TestMachineColours)
#include "tst_machinecolours.moc"
