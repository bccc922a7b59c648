#include "store/zipfile.h"

#include "support/archivetools.h"
#include "support/testmain.h"

#include <QFileInfo>
#include <QTest>

using namespace ArchiveTools;

class TestZipFile : public QObject
{
    Q_OBJECT

private slots:
    void membersComeBackByteForByte()
    {
        const Members members{
            {"Project.json", noise(300'000)}, {"folder/empty", {}}, {"tilemap/{1}", QByteArray(5'000'000, '\0')}};
        QVERIFY(writeArchive(path("three.zip"), members));
        QVERIFY(readFile(path("three.zip")).startsWith("PK\3\4"));
        QVERIFY(QFileInfo(path("three.zip")).size() < 310'000); // the zeros are packed

        ZipFile zip;
        QVERIFY(zip.openForReading(path("three.zip")));
        for (auto member = members.cbegin(); member != members.cend(); ++member) {
            QVERIFY(zip.contains(member.key()));
            QCOMPARE(zip.read(member.key()), member.value());
        }
        for (const char *other : {"project.json", "empty", "folder/"})
            QVERIFY(!zip.contains(other) && zip.read(other).isEmpty());
    }

    void closingIsSafeAtAnyTime()
    {
        QVERIFY(writeFile(path("a.zip"), noise(100'000))); // which is truncated
        {
            ZipFile zip;
            QVERIFY(zip.close());
            QVERIFY(zip.openForWriting(path("a.zip")));
            QVERIFY(zip.write("a", "first"));
            QVERIFY(!zip.contains("a") && zip.read("a").isEmpty());
        } // the destructor finishes the archive
        QVERIFY(QFileInfo(path("a.zip")).size() < 200);
        ZipFile zip;
        QVERIFY(zip.openForReading(path("a.zip")));
        QCOMPARE(zip.read("a"), "first");
        QVERIFY(!zip.write("c", "d"));
    }

    void readsADamagedMemberAsEmpty()
    {
        QVERIFY(writeArchive(path("good.zip"), {{"broken", noise(1000)}, {"whole", "content"}}));
        const QByteArray good = readFile(path("good.zip"));
        QList<QByteArray> damaged{good};
        damaged[0][good.indexOf("broken") + 500] ^= 1; // noise is stored as it is: only the checksum tells
        for (const auto &[field, value] : {std::pair{Checksum, 0x12345678U},
                                           {Size, 0xFFFFFFFEU},
                                           {Size, 1U << 29}, // more than its packed bytes can yield
                                           {Size, 1001U},
                                           {Size, 999U},
                                           {PackedSize, 0x7FFFFFFFU}, // beyond the file
                                           {PackedSize, 3U},
                                           {Method, 99U}, // unknown
                                           {Method, 0U}, // stored, although it is deflated
                                           {HeaderOffset, 0x7FFFFFFFU}}) {
            damaged.append(good);
            patchDirectory(damaged.last(), "broken", field, value);
        }
        for (const QByteArray &archive : damaged) {
            QVERIFY(writeFile(path("broken.zip"), archive));
            ZipFile zip;
            QVERIFY(zip.openForReading(path("broken.zip")));
            QVERIFY(zip.contains("broken"));
            QVERIFY2(zip.read("broken").isEmpty(), qPrintable(QString::number(&archive - damaged.constData())));
            QCOMPARE(zip.read("whole"), "content");
        }
    }

private:
    const TemporaryFolder path;
};

QUENMORA_TEST_MAIN(TestZipFile)
#include "tst_zipfile.moc"
