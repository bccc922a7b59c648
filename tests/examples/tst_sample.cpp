#include "examples/sample.h"
#include "model/image.h"
#include "model/map.h"
#include "model/project.h"
#include "store/projectdocument.h"
#include "store/projectstore.h"
#include "store/zipfile.h"
#include "support/testmain.h"

#include <QtGui>
#include <QtTest>

namespace {

QImage picture(const QString &name)
{
    return QImage(QFINDTESTDATA("pictures/" + name)).convertToFormat(QImage::Format_RGB32);
}

} // namespace

/// The sample project in the tree is worth opening, and made of the pictures beside it.
class TestSample : public QObject
{
    Q_OBJECT

    ProjectStore m_store;

private slots:
    void initTestCase()
    {
        QVERIFY(m_store.load(QFINDTESTDATA("sample.quenmora")));
        const Project &project = *m_store.project();
        QVERIFY(project.maps().size() == 2 && project.spriteBanks().size() == 1 && project.images().size() == 4);
        const QString map = project.maps().first()->id().toString();
        QVERIFY(project.openDocuments().size() == 3 && project.openDocuments().last() == map);
        const QImage title = project.images().first()->image();
        QCOMPARE(title.size(), project.screenSize());
        QCOMPARE(title.convertToFormat(QImage::Format_RGB32), picture("title.png"));
        const QImage loading = project.images()[1]->image();
        QCOMPARE(loading.convertToFormat(QImage::Format_RGB32), picture("title.png").copy(32, 0, 256, 192));
    }

    /// Fails when somebody changes a picture, or how the sample is made, and does not make it anew.
    void theFileIsMadeOfThePictures()
    {
        Project project;
        QString error;
        QVERIFY2(buildSample(project, QDir(QFINDTESTDATA("pictures")), error), qPrintable(error));
        ZipFile archive;
        QVERIFY(archive.openForReading(QFINDTESTDATA("sample.quenmora")));
        const ProjectMembers members = serializeProject(project, true);
        const ProjectMembers opened = serializeProject(*m_store.project(), true); // saving it changes no picture
        for (auto member = members.cbegin(); member != members.cend(); ++member) {
            const QByteArray stored = archive.read(member.key());
            QVERIFY2(!stored.isEmpty(), qPrintable(member.key()));
            if (!member.key().endsWith(".png")) {
                QCOMPARE(stored, member.value());
                continue;
            }
            // versions of the compressing library make different bytes of the same picture
            const QImage expected = QImage::fromData(stored);
            for (const QByteArray &bytes : {member.value(), opened.value(member.key())}) {
                QCOMPARE(QImage::fromData(bytes), expected);
                QVERIFY2(QImage::fromData(bytes).colorTable() == expected.colorTable(), qPrintable(member.key()));
            }
        }
    }

    void unusablePicturesAreRefused()
    {
        const QTemporaryDir folder;
        Project project;
        QString error;
        QVERIFY(!buildSample(project, QDir(folder.path()), error) && error.contains("tiles.png"));
        QVERIFY(QImage(8, 8, QImage::Format_Mono).save(folder.filePath("tiles.png")));
        QVERIFY(!buildSample(project, QDir(folder.path()), error) && error.contains("128 × 72"));
    }
};

QUENMORA_TEST_MAIN(TestSample)
#include "tst_sample.moc"
