#include "support/testmain.h"
#include "undo/pixeleditcommand.h"

#include <QPointer>
#include <QTest>
#include <QUndoStack>

class TestPixelEditCommand : public QObject
{
    Q_OBJECT

private slots:
    void onlyScrollsOfTheSamePictureMerge()
    {
        // the width of a picture tells which one it is
        QList<int> applied;
        const auto apply = [&applied](const QImage &image) { applied.append(image.width()); };
        const auto picture = [](int width) { return QImage(width, 1, QImage::Format_Grayscale8); };
        const auto keyOf = [](QObject *image) { return QVariant::fromValue(QPointer<QObject>(image)); };
        using enum PixelEditCommand::Kind;
        for (const auto &[kind, key, merged] : {std::tuple{Scroll, keyOf(this), true},
                                                {Scroll, keyOf(qApp), false},
                                                {Scroll, QVariant("set:4"), false},
                                                {None, keyOf(this), false}}) {
            applied.clear();
            QUndoStack stack;
            stack.push(new PixelEditCommand({}, picture(1), picture(2), apply, keyOf(this), Scroll));
            stack.push(new PixelEditCommand({}, picture(2), picture(3), apply, key, kind));
            QCOMPARE(stack.count(), merged ? 1 : 2);
            QCOMPARE(applied, QList<int>());
            stack.undo();
            stack.redo();
            QCOMPARE(applied, (QList<int>{merged ? 1 : 2, 3}));
        }
    }
};

QUENMORA_TEST_MAIN(TestPixelEditCommand)
#include "tst_pixeleditcommand.moc"
