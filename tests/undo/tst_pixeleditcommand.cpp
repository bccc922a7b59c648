#include "support/testmain.h"
#include "undo/pixeleditcommand.h"

#include <QPointer>
#include <QTest>
#include <QUndoStack>

class TestPixelEditCommand : public QObject
{
    Q_OBJECT

private slots:
    void onlyScrollsOfTheSamePictureMerge_data();
    void onlyScrollsOfTheSamePictureMerge();
};

void TestPixelEditCommand::onlyScrollsOfTheSamePictureMerge_data()
{
    QTest::addColumn<PixelEditCommand::Kind>("kind"); // of the second; the first is a scroll of the image
    QTest::addColumn<QVariant>("key");
    QTest::addColumn<bool>("merged");
    const auto keyOf = [](QObject *image) { return QVariant::fromValue(QPointer<QObject>(image)); };
    QTest::newRow("scroll") << PixelEditCommand::Scroll << keyOf(this) << true;
    QTest::newRow("scroll of another image") << PixelEditCommand::Scroll << keyOf(qApp) << false;
    QTest::newRow("scroll of a tile") << PixelEditCommand::Scroll << QVariant("set:4") << false;
    QTest::newRow("stroke") << PixelEditCommand::None << keyOf(this) << false;
}

void TestPixelEditCommand::onlyScrollsOfTheSamePictureMerge()
{
    QFETCH(PixelEditCommand::Kind, kind);
    QFETCH(QVariant, key);
    QFETCH(bool, merged);
    // The width of a picture tells which one it is.
    QList<int> applied;
    const auto apply = [&applied](const QImage &image) { applied.append(image.width()); };
    const auto picture = [](int width) { return QImage(width, 1, QImage::Format_Grayscale8); };
    const QVariant image = QVariant::fromValue(QPointer<QObject>(this));
    QUndoStack stack;
    stack.push(new PixelEditCommand({}, picture(1), picture(2), apply, image, PixelEditCommand::Scroll));
    stack.push(new PixelEditCommand({}, picture(2), picture(3), apply, key, kind));
    QCOMPARE(stack.count(), merged ? 1 : 2);
    QCOMPARE(applied, QList<int>());
    stack.undo();
    stack.redo();
    QCOMPARE(applied, merged ? (QList<int>{1, 3}) : (QList<int>{2, 3}));
}

QUENMORA_TEST_MAIN(TestPixelEditCommand)
#include "tst_pixeleditcommand.moc"
