#include "support/testmain.h"
#include "ui/svgiconengine.h"

#include <QApplication>
#include <QDirIterator>
#include <QFile>
#include <QPainter>
#include <QPalette>
#include <QTest>

namespace {

/// The opaque colours of an icon, without the half-transparent pixels of its edges.
QSet<QRgb> solidColours(const QImage &image)
{
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) == 255)
                colours.insert(image.pixel(x, y));
        }
    }
    return colours;
}

} // namespace

class TestSvgIconEngine : public QObject
{
    Q_OBJECT

private slots:
    void everyIconDraws();
    void takesItsColourFromThePalette();
    void rendersAtTheDevicePixelRatio();
    void paintsInTheMiddleOfAnyRectangle();
    void keepsTheColoursOfTheProgramIcon();
    void missingResourceIsNull();
    void cursorsHaveASharpTwin();
};

void TestSvgIconEngine::everyIconDraws()
{
    int seen = 0;
    QDirIterator resources(":/", QDir::Files, QDirIterator::Subdirectories);
    while (resources.hasNext()) {
        const QString path = resources.next();
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly) || !file.readAll().contains("currentColor")) {
            continue; // Qt's own
        }
        ++seen;
        const QImage image = themedIcon(path).pixmap(24).toImage();
        QVERIFY2(!solidColours(image).isEmpty(), qPrintable(path));
    }
    QVERIFY(seen > 90);
}

void TestSvgIconEngine::takesItsColourFromThePalette()
{
    const QPalette before = QApplication::palette();
    const QIcon icon = themedIcon(":/RectangleFill");
    for (const auto &[text, dimmed, highlighted] :
         {std::tuple{Qt::black, Qt::gray, Qt::white}, std::tuple{Qt::white, Qt::darkGray, Qt::black}}) {
        QPalette palette = before;
        palette.setColor(QPalette::ButtonText, text);
        palette.setColor(QPalette::Disabled, QPalette::ButtonText, dimmed);
        palette.setColor(QPalette::HighlightedText, highlighted);
        QApplication::setPalette(palette);
        QCOMPARE(solidColours(icon.pixmap(24).toImage()), QSet{QColor(text).rgb()});
        QCOMPARE(solidColours(icon.pixmap(24, QIcon::Disabled).toImage()), QSet{QColor(dimmed).rgb()});
        QCOMPARE(solidColours(icon.pixmap(24, QIcon::Selected).toImage()), QSet{QColor(highlighted).rgb()});
    }
    QApplication::setPalette(before);
}

void TestSvgIconEngine::rendersAtTheDevicePixelRatio()
{
    for (const auto &[ratio, side] : {std::pair{1.0, 24}, {1.25, 30}, {2.0, 48}}) {
        const QPixmap pixmap = themedIcon(":/Rectangle").pixmap(QSize(24, 24), ratio);
        QCOMPARE(pixmap.size(), QSize(side, side));
        QCOMPARE(pixmap.devicePixelRatio(), ratio);
    }
}

void TestSvgIconEngine::paintsInTheMiddleOfAnyRectangle()
{
    QImage canvas(64, 32, QImage::Format_ARGB32_Premultiplied);
    canvas.setDevicePixelRatio(2);
    canvas.fill(Qt::transparent);
    QPainter painter(&canvas);
    themedIcon(":/RectangleFill").paint(&painter, {0, 0, 32, 16});
    painter.end();
    // the square fills 18 of 24 units, here 24 of 32 pixels in the middle of 64
    QCOMPARE(qAlpha(canvas.pixel(16, 16)), 0);
    QCOMPARE(qAlpha(canvas.pixel(32, 16)), 255);
    QCOMPARE(qAlpha(canvas.pixel(47, 16)), 0);
}

void TestSvgIconEngine::keepsTheColoursOfTheProgramIcon()
{
    const auto colours = solidColours(themedIcon(":Application").pixmap(64).toImage());
    QVERIFY(colours.contains(qRgb(0xf0, 0x38, 0x4a)));
    QVERIFY(colours.size() >= 5);
}

void TestSvgIconEngine::missingResourceIsNull()
{
    QTest::ignoreMessage(QtWarningMsg, "No icon :/Nothing");
    const QIcon icon = themedIcon(":/Nothing");
    QVERIFY(icon.isNull());
    QVERIFY(icon.pixmap(16).isNull());
}

void TestSvgIconEngine::cursorsHaveASharpTwin()
{
    for (const QString name : {":/FillCursor", ":/PickerCursor"}) {
        QCOMPARE(QImage(name).size(), QSize(32, 32));
        QCOMPARE(QImage(name + "@2x").size(), QSize(64, 64));
    }
}

QUENMORA_TEST_MAIN(TestSvgIconEngine)
#include "tst_svgiconengine.moc"
