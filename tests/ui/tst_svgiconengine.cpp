#include "support/testmain.h"
#include "ui/svgiconengine.h"

#include <QApplication>
#include <QDirIterator>
#include <QFile>
#include <QPainter>
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
    void everyIconDraws()
    {
        int seen = 0;
        QDirIterator resources(":/", QDir::Files, QDirIterator::Subdirectories);
        while (resources.hasNext()) {
            QFile file(resources.next());
            if (!file.open(QIODevice::ReadOnly) || !file.readAll().contains("currentColor"))
                continue; // Qt's own
            ++seen;
            QVERIFY2(!solidColours(themedIcon(file.fileName()).pixmap(24).toImage()).isEmpty(),
                     qPrintable(file.fileName()));
        }
        QVERIFY(seen > 90);
        QTest::ignoreMessage(QtWarningMsg, "No icon :/Nothing");
        QVERIFY(themedIcon(":/Nothing").pixmap(16).isNull());
        // the program's own keeps its colours, and cursors have a sharp twin
        QVERIFY(solidColours(themedIcon(":Application").pixmap(64).toImage()).contains(qRgb(0xf0, 0x38, 0x4a)));
        for (const QString name : {":/FillCursor", ":/PickerCursor"})
            QCOMPARE(QImage(name + "@2x").size(), 2 * QImage(name).size());
    }

    void takesItsColourFromThePalette()
    {
        const QPalette before = QApplication::palette();
        const QIcon icon = themedIcon(":/RectangleFill");
        for (const auto &colours :
             {QList<QColor>{Qt::black, Qt::gray, Qt::white}, {Qt::white, Qt::darkGray, Qt::black}}) {
            QPalette palette = before;
            palette.setColor(QPalette::ButtonText, colours[0]);
            palette.setColor(QPalette::Disabled, QPalette::ButtonText, colours[1]);
            palette.setColor(QPalette::HighlightedText, colours[2]);
            QApplication::setPalette(palette);
            const QIcon::Mode modes[] = {QIcon::Normal, QIcon::Disabled, QIcon::Selected};
            for (int i = 0; i < 3; ++i)
                QCOMPARE(solidColours(icon.pixmap(24, modes[i]).toImage()), QSet{colours[i].rgb()});
        }
        QApplication::setPalette(before);
    }

    void rendersAtTheDevicePixelRatio()
    {
        const QIcon icon = themedIcon(":/RectangleFill");
        for (const auto &[ratio, side] : {std::pair{1.0, 24}, {1.25, 30}, {2.0, 48}}) {
            const QPixmap pixmap = icon.pixmap(QSize(24, 24), ratio);
            QCOMPARE(std::pair(pixmap.size(), pixmap.devicePixelRatio()), std::pair(QSize(side, side), ratio));
        }
        QImage canvas(64, 32, QImage::Format_ARGB32_Premultiplied);
        canvas.setDevicePixelRatio(2);
        canvas.fill(Qt::transparent);
        QPainter painter(&canvas);
        icon.paint(&painter, {0, 0, 32, 16});
        painter.end();
        // the square fills 18 of 24 units, here 24 of 32 pixels in the middle of 64
        for (const auto &[x, alpha] : {std::pair(16, 0), {32, 255}, {47, 0}})
            QCOMPARE(qAlpha(canvas.pixel(x, 16)), alpha);
    }
};

QUENMORA_TEST_MAIN(TestSvgIconEngine)
#include "tst_svgiconengine.moc"
