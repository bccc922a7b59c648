#include "command/description.h"

#include "support/sampleproject.h"
#include "support/testmain.h"

#include "model/mapobjects.h"
#include "model/tileanimation.h"

#include <QTest>
#include <QTextStream>

#include <algorithm>
#include <functional>

namespace {

/// The lines that one text has and the other has not, "-" before those of the first and "+" before those of the second.
QStringList difference(const QByteArray &before, const QByteArray &after)
{
    QByteArrayList old = before.split('\n');
    QStringList changes;
    QStringList added;
    for (const QByteArray &line : after.split('\n')) {
        if (!old.removeOne(line))
            added.append("+" + QString::fromUtf8(line).trimmed());
    }
    for (const QByteArray &line : old)
        changes.append("-" + QString::fromUtf8(line).trimmed());
    return changes + added;
}

/// The description as UTF-8.
QByteArray described(const Project &project)
{
    QByteArray text;
    QTextStream out(&text);
    describe(project, out);
    out.flush();
    return text;
}

using Edit = std::function<void(Project &)>;

} // namespace

Q_DECLARE_METATYPE(Edit)

/// Two descriptions differ by what differs between the projects.
class TestDescription : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_project = std::make_unique<Project>();
        SampleProject::fill(*m_project);
    }

    void oneEditChangesItsLines_data()
    {
        QTest::addColumn<Edit>("edit");
        QTest::addColumn<QStringList>("changes");
        const auto row = [](const char *name, const Edit &edit, const QStringList &changes) {
            QTest::newRow(name) << edit << changes;
        };
        row("open documents", [](Project &p) { p.setOpenDocuments({"other"}); }, {});
        row("project",
            [](Project &p) {
                p.setName("A\nB");
                p.setScreenSize({1, 2});
            },
            {R"(-project "Sample")", "-screen 256 192", R"(+project "A\nB")", "+screen 1 2"});
        row("palettes",
            [](Project &p) {
                p.palettes()[0]->setRawColour(9, 0x2681);
                p.palettes()[1]->setTransparencyIndex(0);
            },
            {"-colour 9 $0901 levels 0 2 3", "-transparency none", "+colour 9 $2681 levels 1 1 5 priority",
             "+transparency 0"});
        row("tiles",
            [](Project &p) {
                QImage image = p.tileSets()[0]->image(1);
                image.setPixel(3, 2, 15);
                p.tileSets()[0]->setTileImage(1, image);
                p.tileSets()[0]->tile(3)->setValue(-4);
            },
            {"-tile 3 offset 15 attributes $FF value 0", "-01234567", "+012f4567",
             "+tile 3 offset 15 attributes $FF value -4"});
        row("cell",
            [](Project &p) {
                p.maps()[0]->setTile({2, 3}, {7, true, true, true, 12, true});
            },
            {"-.*5 257f/3", "+. . 7rmf/12 . . 257f/3"});
        row("cells",
            [](Project &p) {
                p.maps()[0]->setTiles({0, 3, 5, 1}, 2, false, true, false, true);
            },
            {"-.*5 257f/3", "+2f/10*5 257f/3"});
        row("placement", [](Project &p) { p.maps()[0]->animatedBlocks()->list()[0]->setStartFrame(0); },
            {R"(-animation "Door" at 1 1 size 3 2 start 1 delays 5 6)",
             R"(+animation "Door" at 1 1 size 3 2 start 0 delays 5 6)"});
        row("placed sprite",
            [](Project &p) {
                Map::PlacedSprite sprite = p.maps()[0]->sprites()[1];
                sprite.x = 46;
                sprite.flip = true;
                p.maps()[0]->setSprite(1, sprite);
            },
            {R"(-sprite "" at 47 0 bank "Hero" sprite 2 offset 15 start 0 delays 0 0)",
             R"(+sprite "" at 46 0 bank "Hero" sprite 2 flipped offset 15 start 0 delays 0 0)"});
        row("cell of an animation",
            [](Project &p) { p.blockSets()[0]->animations()[0]->frame(0)->setIndex(1, 2, 100); },
            {"-3m/3 4f/4 5r/5", "+3m/3 4f/4 100r/5"});
        row("delay", [](Project &p) { p.spriteBanks()[0]->animations()[0]->setDelay(9); },
            {R"(-animation "Run" size 2 1 delay 1)", R"(+animation "Run" size 2 1 delay 9)"});
        row("pixel of a sprite of 4 bits",
            [](Project &p) {
                QImage sprite = p.spriteBanks()[0]->spriteImage(0, false, false, false);
                sprite.setPixel(0, 5, 0xFE); // whose upper half does not count
                p.spriteBanks()[0]->setImage(0, sprite);
            },
            {"-0*16", "+e000000000000000"});
        row("pixel of an image",
            [](Project &p) {
                QImage image = p.images()[1]->image();
                image.bits()[image.bytesPerLine()] = 0xAB;
                p.images()[1]->setImage(image);
            },
            {"-00*320", "+ab" + QString(638, u'0')});
        row("name", [](Project &p) { p.images()[3]->setName("Wide"); },
            {R"(-image "Wide")", R"(-image "Small")", R"(+image "Wide" ID2)", R"(+image "Wide" ID3)"});
    }

    void oneEditChangesItsLines()
    {
        QFETCH(const Edit, edit);
        QFETCH(QStringList, changes);
        const QByteArray before = described(*m_project);
        edit(*m_project);
        const QByteArray after = described(*m_project);
        for (int i = 0; i < 4; ++i)
            changes.replaceInStrings("ID" + QString::number(i), m_project->images()[i]->id().toString());
        QCOMPARE(difference(before, after), changes);
        QCOMPARE(described(*m_project), after);
    }

    /// What refers to something that is not there says so, and what is blank is short.
    void readsWell()
    {
        const QByteArrayList lines = described(*m_project).split('\n');
        const auto follows = [&](const QByteArray &first, const QByteArray &next) {
            return lines.value(lines.indexOf(first) + 1) == next;
        };
        QVERIFY(lines.startsWith("project \"Sample\"") && lines.endsWith(""));
        QVERIFY(follows("blocks \"Unbound\"", "  tiles none"));
        QVERIFY(follows("sprites \"Without a palette\"", "  palette none"));
        QVERIFY(follows("tiles \"\"", "  palette none"));
        QVERIFY(follows("palette \"\u00E9t\u00E9 \\\"2\\\"\\n\\\\%1\"", "  transparency none"));
    }

private:
    std::unique_ptr<Project> m_project;
};

QUENMORA_TEST_MAIN(TestDescription)
#include "tst_description.moc"
