#include "store/zipfile.h"

#include "support/archivetools.h"
#include "support/filesizelimit.h"
#include "support/testmain.h"

#include <QDir>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

using namespace ArchiveTools;

namespace {

QByteArray noise(int size)
{
    QRandomGenerator random(1);
    QByteArray bytes(size, Qt::Uninitialized);
    for (char &byte : bytes)
        byte = char(random.bounded(256));
    return bytes;
}

} // namespace

class TestZipFile : public QObject
{
    Q_OBJECT

private slots:
    void membersComeBackByteForByte();
    void closingIsSafeAtAnyTime();
    void tellsMissingFromEmptyMembers();
    void refusesPlacesThatCannotBeOpened();
    void reportsAFullDisk_data();
    void reportsAFullDisk();
    void readsADamagedMemberAsEmpty_data();
    void readsADamagedMemberAsEmpty();

private:
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

void TestZipFile::membersComeBackByteForByte()
{
    const Members members{{"project.json", noise(300'000)}, {"tilemap/{1}", QByteArray(5'000'000, '\0')}};
    QVERIFY(writeArchive(path("two.zip"), members));
    QVERIFY(fileBytes(path("two.zip")).startsWith("PK\3\4"));
    QVERIFY(QFileInfo(path("two.zip")).size() < 310'000); // the zeros are packed

    ZipFile zip;
    QVERIFY(zip.openForReading(path("two.zip")));
    for (auto member = members.cbegin(); member != members.cend(); ++member)
        QCOMPARE(zip.read(member.key()), member.value());
    QVERIFY(zip.close());
}

void TestZipFile::closingIsSafeAtAnyTime()
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

void TestZipFile::tellsMissingFromEmptyMembers()
{
    QVERIFY(writeArchive(path("names.zip"), {{"Project.json", "{}"}, {"folder/empty", {}}}));
    ZipFile zip;
    QVERIFY(zip.openForReading(path("names.zip")));
    QVERIFY(!zip.contains("project.json"));
    QVERIFY(zip.read("project.json").isEmpty());
    QVERIFY(zip.contains("Project.json"));
    QVERIFY(zip.contains("folder/empty"));
    QVERIFY(!zip.contains("empty"));
    QVERIFY(zip.read("folder/empty").isEmpty());
}

void TestZipFile::refusesPlacesThatCannotBeOpened()
{
    QVERIFY(writeFile(path("file"), "not an archive"));
    QVERIFY(QDir(m_folder.path()).mkpath("folder"));
    for (const QString &name : {path("file"), path("folder"), path("missing.zip"), path("file/below"), QString()}) {
        ZipFile zip;
        QVERIFY2(!zip.openForReading(name), qPrintable(name));
        QVERIFY(zip.close());
    }
    for (const QString &name : {path("folder"), path("missing/a.zip"), path("file/below"), QString()}) {
        ZipFile zip;
        QVERIFY2(!zip.openForWriting(name), qPrintable(name));
        QVERIFY(zip.close());
    }
}

void TestZipFile::reportsAFullDisk_data()
{
    QTest::addColumn<int>("limit");
    QTest::addColumn<int>("size");
    QTest::newRow("inside a large member") << 100'000 << 400'000;
    QTest::newRow("in the directory, which is written at the end") << 50 << 20;
}

void TestZipFile::reportsAFullDisk()
{
    QFETCH(int, limit);
    QFETCH(int, size);
    const FileSizeLimit fullDisk{rlim_t(limit)};
    QVERIFY(!writeArchive(path("full.zip"), {{"member", noise(size)}}));
}

void TestZipFile::readsADamagedMemberAsEmpty_data()
{
    QTest::addColumn<int>("field");
    QTest::addColumn<quint32>("value");
    QTest::newRow("changed content") << -1 << 0U; // noise is stored as it is: only the checksum tells
    QTest::newRow("other checksum") << int(Checksum) << 0x12345678U;
    QTest::newRow("claims 4 GiB") << int(Size) << 0xFFFFFFFEU;
    QTest::newRow("claims more than its packed bytes can yield") << int(Size) << (1U << 29);
    QTest::newRow("claims one byte more") << int(Size) << 1001U;
    QTest::newRow("claims one byte less") << int(Size) << 999U;
    QTest::newRow("packed size beyond the file") << int(PackedSize) << 0x7FFFFFFFU;
    QTest::newRow("packed size cut") << int(PackedSize) << 3U;
    QTest::newRow("unknown method") << int(Method) << 99U;
    QTest::newRow("stored, although deflated") << int(Method) << 0U;
    QTest::newRow("header outside the file") << int(HeaderOffset) << 0x7FFFFFFFU;
}

void TestZipFile::readsADamagedMemberAsEmpty()
{
    QFETCH(int, field);
    QFETCH(quint32, value);
    QVERIFY(writeArchive(path("good.zip"), {{"broken", noise(1000)}, {"whole", "content"}}));
    QByteArray archive = fileBytes(path("good.zip"));
    if (field >= 0)
        patchDirectory(archive, "broken", DirectoryField(field), value);
    else
        archive[archive.indexOf("broken") + 500] ^= 1;
    QVERIFY(writeFile(path("broken.zip"), archive));

    ZipFile zip;
    QVERIFY(zip.openForReading(path("broken.zip")));
    QVERIFY(zip.contains("broken"));
    QVERIFY(zip.read("broken").isEmpty());
    QCOMPARE(zip.read("whole"), "content");
}

QUENMORA_TEST_MAIN(TestZipFile)
#include "tst_zipfile.moc"
