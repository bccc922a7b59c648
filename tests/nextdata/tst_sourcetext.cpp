#include "nextdata/filenames.h"
#include "support/formoutput.h"
#include "support/randomproject.h"
#include "support/testmain.h"

#include <QtTest>

using namespace NextData;

namespace {

/// Names that people or damaged projects give, and that no assembler or file system would take.
const QStringList &awkwardNames()
{
    static const QStringList names =
        QString("Level|Level|level 2|ld|HL|int|floor|1st||..|../../up|con.map|Gr\u00F6\u00DFe \"x\" / y\\|\u65E5\u672C|"
                "*/ #error|a\n\tdb 1\r\n; b ?\?/|label:")
            .split('|')
        + QStringList{QString(10000, 'x'), QString(10000, 'x') + 'y'};
    return names;
}

struct Tools
{
    QString suffix;
    QString include; ///< takes in a file
    QString numbers; ///< writes "%1", and a byte each of two constants and of half the place of a record's label
    QList<QStringList> commands; ///< that make all.bin of the file "all" with that suffix
};

Tools toolsOf(const QString &dialect)
{
    const QString numbers = "SPOT_COUNT, SPOT_RECORD_SIZE, (spot_bat - spot) / 2\n";
    if (dialect == "gas")
        return {"s",
                ".include \"%1\"\n",
                ".byte " + numbers,
                {{"z80-unknown-coff-as", "-march=z80n", "-o", "all.o", "all.s"},
                 {"z80-unknown-coff-objcopy", "-O", "binary", "all.o", "all.bin"}}};
    if (dialect == "c")
        return {"c",
                "#include \"%1\"\n",
                "#include <stdio.h>\nint main(void) {\n%1putchar(SPOT_COUNT); putchar(SPOT_RECORD_SIZE); "
                "putchar((int)(spot_bat - spot) / 2);\nreturn 0; }\n",
                {{"gcc", "-std=c99", "-pedantic", "-Wall", "-Wextra", "-Werror", "-o", "all", "all.c"},
                 {"sh", "-c", "./all > all.bin"}}};
    const QString word = dialect == "z80asm" ? "\tdefb " : "\tdb ";
    return {"asm", "\tinclude \"%1\"\n", word + numbers, {{"z80asm", "-o", "all.bin", "all.asm"}}};
}

} // namespace

/// Text, assembled or compiled, is the same as the bytes; names in it and of files are good everywhere.
class TestSourceText : public QObject
{
    Q_OBJECT

    RandomProject m_random{3};

    /// Outputs of all assets in all their forms, whole, padded, and cut, with the bytes for which they stand.
    struct Outputs
    {
        QByteArray bytes;
        QList<OutputFile> files;
    };

    Outputs outputs(const QString &dialect, const QString &suffix)
    {
        Outputs all;
        Names names;
        int number = 0;
        const auto add = [&](const QString &form, const Source &source, Options options) {
            const auto binary = written(form, source, options);
            if (!binary) // a map that does not fit into one byte a cell, sprites that do not into four bits
                return;
            for (const OutputFile &file : *binary)
                all.bytes += file.bytes;
            options.insert("text", dialect);
            const auto text = written(form, source, options, QString("o%1.%2").arg(number++).arg(suffix), &names);
            if (!text)
                qFatal("%s", qPrintable(text.reason()));
            all.files += *text;
        };
        for (const Source &source : Source::all(m_random.project)) {
            for (const Form *form : formsFor(source)) {
                const bool isLarge = form->kind == AssetKind::Image; // one of its form is enough
                for (const Options &options : {Options{{"cut", "8k"}, {"pad", "1000"}}, Options()}) {
                    if (!isLarge || !options.isEmpty())
                        add(form->id, source, options);
                }
            }
        }
        add("map-sprites", sourceOf(m_random.project, m_random.map), {{"label", "spot"}});
        const QList<Map::PlacedSprite> &sprites = m_random.map->sprites();
        all.bytes += char(sprites.size());
        all.bytes += char(16);
        all.bytes += char(1 + 8 * (sprites.size() - 1)); // half the place of the last one
        return all;
    }

    /// Runs a tool in a folder; what it said, or nothing when it was content.
    static QString run(const QString &folder, const QStringList &command)
    {
        QProcess tool;
        tool.setWorkingDirectory(folder);
        tool.setProcessChannelMode(QProcess::MergedChannels);
        tool.start(command.first(), command.mid(1));
        const bool succeeded = tool.waitForFinished(120000) && tool.exitCode() == 0;
        const QString said = QString::fromUtf8(tool.readAll());
        return succeeded && said.trimmed().isEmpty() ? QString() : command.first() + " failed: " + said;
    }

private slots:
    void initTestCase()
    {
        QStringList names = awkwardNames();
        for (const auto &palette : m_random.project.palettes())
            palette->setName(names.takeFirst());
        m_random.tiles->setName(names.takeFirst());
        m_random.map->setName(names.takeFirst());
        m_random.map->addSprite({m_random.project.spriteBanks().first()->id()});
        Map::PlacedSprite bat = m_random.map->sprites().last();
        for (const QString &name : awkwardNames()) {
            bat.name = name;
            m_random.map->addSprite(bat);
        }
        bat.name = "Bat";
        m_random.map->addSprite(bat);
        for (const auto &bank : m_random.project.spriteBanks()) {
            bank->setName(names.takeFirst());
            for (const auto &animation : bank->animations())
                animation->setName(names.first());
        }
        for (const auto &image : m_random.project.images())
            image->setName(names.takeFirst());
        for (const QString &name : names) {
            const auto plain = m_random.project.createMap(name, m_random.tiles->id(), {90, 3});
            plain->setTile({1, 2}, {255, false, false, false, 0, true});
        }
    }

    void becomesTheBytes_data()
    {
        QTest::addColumn<QString>("dialect");
        for (const char *dialect : {"sjasmplus", "z80asm", "gas", "c"})
            QTest::newRow(dialect) << dialect;
    }

    void becomesTheBytes()
    {
        QFETCH(QString, dialect);
        const Tools tools = toolsOf(dialect);
        if (QStandardPaths::findExecutable(tools.commands.first().first()).isEmpty())
            QSKIP(qPrintable(tools.commands.first().first() + " is not installed"));
        const TemporaryFolder folder;
        const Outputs all = outputs(dialect, tools.suffix);
        const QRegularExpression array("extern const unsigned char (\\w+)\\[");
        QString source;
        QString writes; // of C, which has no file to write into by itself
        for (const OutputFile &file : all.files) {
            folder(file.name, file.bytes);
            source += tools.include.arg(file.name);
            auto arrays = array.globalMatch(QString::fromUtf8(file.bytes));
            while (arrays.hasNext())
                writes += QString("fwrite(%1, 1, sizeof %1, stdout);\n").arg(arrays.next().captured(1));
        }
        folder("all." + tools.suffix, (source + QString(tools.numbers).replace("%1", writes)).toLatin1());
        for (const QStringList &command : tools.commands)
            QCOMPARE(run(folder(), command), QString());
        QVERIFY(readFile(folder("all.bin")) == all.bytes);
    }

    void filesAreCut()
    {
        const auto palette = sourceOf(m_random.project, m_random.project.palettes().first());
        const auto image = sourceOf(m_random.project, m_random.project.images().last());
        const auto sizes = [](const Source &source, const QString &form, const Options &options) {
            QStringList texts;
            for (const OutputFile &file : *written(form, source, options, "a.b.bin"))
                texts.append(QString("%1 %2").arg(file.name).arg(file.bytes.size()));
            return texts;
        };
        QCOMPARE(sizes(palette, "palette", {{"cut", "8k"}}), (QStringList{"a.b_0.bin 512"}));
        QCOMPARE(sizes(palette, "palette", {{"cut", "16k"}, {"pad", "16400"}}),
                 (QStringList{"a.b_0.bin 16384", "a.b_1.bin 16"}));
        QCOMPARE(sizes(image, "lores", {{"cut", "8k"}, {"palette", "true"}}),
                 (QStringList{"a.b_0.bin 8192", "a.b_1.bin 4608"}));
        QCOMPARE(sizes(image, "lores", {{"cut", "8k"}, {"halves", "true"}, {"pad", "8192"}}),
                 (QStringList{"a.b_0.bin 6144", "a.b_1.bin 8192", "a.b_2.bin 2048"}));
    }

    void screensAreFiles()
    {
        Project project;
        const auto map = project.createMap("Cave", {}, {5, 3});
        for (const auto &[width, count, size] : {std::tuple{"2", 6, 8}, {"5", 2, 20}}) {
            const Options options{{"screen-width", width}, {"screen-height", "2"}, {"screen-files", "true"}};
            const auto files = written("map-2byte", sourceOf(project, map), options, "cave.map");
            QCOMPARE(files->size(), count);
            for (int i = 0; i < count; ++i)
                QCOMPARE((*files)[i], (OutputFile{QString("cave_%1.map").arg(i), QByteArray(size, 0)}));
        }
        const auto whole = written("map-1byte", sourceOf(project, map), {{"screen-files", "true"}}, "cave.map");
        QCOMPARE(whole->first().name, "cave_0.map"); // as it is called when the map has grown
    }

    void labels()
    {
        // what is written of the two assets that are called "Level" tells their labels apart
        Names taken;
        const auto labelOf = [&taken](const QString &form, const Source &source) {
            const auto files = written(form, source, {{"text", "c"}}, "a.c", &taken);
            return QString::fromUtf8(files->first().bytes).section("char ", 1).section('[', 0, 0);
        };
        const Project &project = m_random.project;
        QCOMPARE(labelOf("tiles-4bit", sourceOf(project, m_random.tiles)), "level");
        QCOMPARE(labelOf("palette", sourceOf(project, project.palettes().first())), "level_palette");
        QCOMPARE(labelOf("palette-8bit", sourceOf(project, project.palettes().first())), "level_palette_2");

        Names names;
        QStringList labels;
        for (const QString &name : awkwardNames())
            labels.append(names.claim(name, "map", {"width"}));
        QCOMPARE(labels,
                 (QStringList{"level", "level_2", "level_2_2", "ld_data", "hl_data", "int_data", "floor_data",
                              "map_1st", "map", "map_2", "up", "con_map", "grosse_x_y", "map_3", "error", "a_db_1_b",
                              "label", QString(40, 'x'), QString(40, 'x') + "_2"}));
        QCOMPARE(names.claim("Level width", "map"), "level_width_2"); // LEVEL_WIDTH is there
        QCOMPARE(names.claim("Title", "image"), "title");
        QCOMPARE(names.claim("Up", "map", {"of"}), "up_2");
        QVERIFY(names.claimExactly("Tower") && !names.claimExactly("tower") && !names.claimExactly("level"));
    }

    void fileNames()
    {
        const std::pair<QString, QString> names[] = {
            {"Level 1", "Level 1"},
            {"Gr\u00F6\u00DFe", "Gr\u00F6\u00DFe"},
            {"../../etc/passwd", "_.._etc_passwd"},
            {"a:b*c?\"<>|\\d\n", "a_b_c______d_"},
            {"Con", "map_Con"},
            {"lpt\u00B9.old", "map_lpt\u00B9.old"},
            {"dots. . .", "dots"},
            {"..", "map"},
            {"", "map"},
            {QString(10000, QChar(0x65E5)), QString(80, QChar(0x65E5))},
        };
        for (const auto &[name, fileName] : names) {
            QCOMPARE(FileNames::fromAssetName(name, "map"), fileName);
            QCOMPARE(FileNames::problemOf("gfx/" + fileName + ".map"), QString());
            if (name != fileName) // what is no file's name is never written under it
                QVERIFY(!FileNames::problemOf(name).isEmpty() || name == "Con");
        }
        const auto palette = sourceOf(m_random.project, m_random.project.palettes().first());
        for (const char *path : {"/etc/passwd", "C:/a", "../a", "a/../../b", "a//b", "a/", "a/.", "nul.map", "a?b"})
            QVERIFY2(!FileNames::problemOf(path).isEmpty() && !written("palette", palette, {}, path), path);
    }
};

QUENMORA_TEST_MAIN(TestSourceText)
#include "tst_sourcetext.moc"
