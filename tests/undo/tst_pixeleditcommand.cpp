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
    QTest::addColumn<PixelEditCommand::Kind>("first");
    QTest::addColumn<PixelEditCommand::Kind>("second");
    QTest::addColumn<QVariant>("firstKey");
    QTest::addColumn<QVariant>("secondKey");
    QTest::addColumn<bool>("merged");

    using Command = PixelEditCommand;
    const QVariant tile = QStringLiteral("set:3");
    const QVariant image = QVariant::fromValue(QPointer<QObject>(this));
    const QVariant otherImage = QVariant::fromValue(QPointer<QObject>(qApp));
    QTest::newRow("scrolls") << Command::Scroll << Command::Scroll << tile << tile << true;
    QTest::newRow("scrolls of two tiles")
        << Command::Scroll << Command::Scroll << tile << QVariant(QStringLiteral("set:4")) << false;
    QTest::newRow("scrolls of an image") << Command::Scroll << Command::Scroll << image << image << true;
    QTest::newRow("scrolls of two images") << Command::Scroll << Command::Scroll << image << otherImage << false;
    QTest::newRow("strokes") << Command::None << Command::None << tile << tile << false;
    QTest::newRow("stroke after scroll") << Command::Scroll << Command::None << tile << tile << false;
}

void TestPixelEditCommand::onlyScrollsOfTheSamePictureMerge()
{
    QFETCH(PixelEditCommand::Kind, first);
    QFETCH(PixelEditCommand::Kind, second);
    QFETCH(QVariant, firstKey);
    QFETCH(QVariant, secondKey);
    QFETCH(bool, merged);

    // The width of a picture tells which one it is.
    QList<int> applied;
    const auto apply = [&applied](const QImage &image) { applied.append(image.width()); };
    const auto picture = [](int width) { return QImage(width, 1, QImage::Format_Grayscale8); };
    QUndoStack stack;
    stack.push(new PixelEditCommand({}, picture(1), picture(2), apply, firstKey, first));
    stack.push(new PixelEditCommand({}, picture(2), picture(3), apply, secondKey, second));
    QCOMPARE(stack.count(), merged ? 1 : 2);
    QCOMPARE(applied, QList<int>());
    stack.undo();
    stack.redo();
    QCOMPARE(applied, merged ? (QList<int>{1, 3}) : (QList<int>{2, 3}));
}

QUENMORA_TEST_MAIN(TestPixelEditCommand)
#include "tst_pixeleditcommand.moc"
