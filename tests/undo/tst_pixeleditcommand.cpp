#include "support/testmain.h"
#include "undo/pixeleditcommand.h"

#include <QPointer>
#include <QTest>
#include <QUndoStack>

class TestPixelEditCommand : public QObject
{
    Q_OBJECT

private slots:
    void appliesOnlyAfterUndo();
    void onlyScrollsOfTheSamePictureMerge_data();
    void onlyScrollsOfTheSamePictureMerge();
    void guardedPointersAreKeys();

private:
    static QImage picture(int pixel)
    {
        QImage image(8, 8, QImage::Format_Indexed8);
        image.setColorCount(256);
        for (int index = 0; index < 256; ++index)
            image.setColor(index, qRgb(index, 0, 0));
        image.fill(pixel);
        return image;
    }

    PixelEditCommand *makeEdit(int before, int after, PixelEditCommand::Kind kind, const QVariant &key)
    {
        const auto apply = [this](const QImage &image) {
            m_image = image;
            ++m_applies;
        };
        m_image = picture(after);
        return new PixelEditCommand(QStringLiteral("Edit"), picture(before), m_image, apply, key, kind);
    }

    QImage m_image;
    int m_applies = 0;
};

void TestPixelEditCommand::appliesOnlyAfterUndo()
{
    m_applies = 0;
    QUndoStack stack;
    stack.push(makeEdit(1, 2, PixelEditCommand::None, QStringLiteral("tile")));
    QCOMPARE(m_applies, 0);
    stack.undo();
    QCOMPARE(m_image, picture(1));
    stack.redo();
    QCOMPARE(m_image, picture(2));
    QCOMPARE(m_applies, 2);
}

void TestPixelEditCommand::onlyScrollsOfTheSamePictureMerge_data()
{
    QTest::addColumn<PixelEditCommand::Kind>("first");
    QTest::addColumn<PixelEditCommand::Kind>("second");
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("merged");

    const QString same = QStringLiteral("set:3");
    QTest::newRow("scrolls") << PixelEditCommand::Scroll << PixelEditCommand::Scroll << same << true;
    QTest::newRow("scrolls of two tiles")
        << PixelEditCommand::Scroll << PixelEditCommand::Scroll << QStringLiteral("set:4") << false;
    QTest::newRow("strokes") << PixelEditCommand::None << PixelEditCommand::None << same << false;
    QTest::newRow("stroke after scroll") << PixelEditCommand::Scroll << PixelEditCommand::None << same << false;
}

void TestPixelEditCommand::onlyScrollsOfTheSamePictureMerge()
{
    QFETCH(PixelEditCommand::Kind, first);
    QFETCH(PixelEditCommand::Kind, second);
    QFETCH(QString, key);
    QFETCH(bool, merged);

    QUndoStack stack;
    stack.push(makeEdit(1, 2, first, QStringLiteral("set:3")));
    stack.push(makeEdit(2, 3, second, key));
    QCOMPARE(stack.count(), merged ? 1 : 2);
    stack.undo();
    QCOMPARE(m_image, picture(merged ? 1 : 2));
    stack.redo();
    QCOMPARE(m_image, picture(3));
}

void TestPixelEditCommand::guardedPointersAreKeys()
{
    QObject one;
    QObject two;
    const auto key = [](QObject &asset) { return QVariant::fromValue(QPointer<QObject>(&asset)); };

    QUndoStack stack;
    stack.push(makeEdit(1, 2, PixelEditCommand::Scroll, key(one)));
    stack.push(makeEdit(2, 3, PixelEditCommand::Scroll, key(one)));
    QCOMPARE(stack.count(), 1);
    stack.push(makeEdit(3, 4, PixelEditCommand::Scroll, key(two)));
    QCOMPARE(stack.count(), 2);
}

QUENMORA_TEST_MAIN(TestPixelEditCommand)
#include "tst_pixeleditcommand.moc"
