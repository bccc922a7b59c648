#include "command/description.h"

#include "support/sampleproject.h"
#include "support/testmain.h"

#include "model/mapobjects.h"
#include "model/tileanimation.h"

#include <QtTest>

namespace {

/// The lines that one text has and the other has not, "-" before those of the first and "+" before those of the
/// second, sorted.
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
    changes += added;
    changes.sort();
    return changes;
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

} // namespace

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

    void editsChangeTheirLinesAndNoOthers()
    {
        Project &p = *m_project;
        const QByteArray before = described(p);
        p.setName("A\nB");
        p.setOpenDocuments({"other"}); // which says nothing
        p.palettes()[0]->setRawColour(9, 0x2681);
        p.palettes()[1]->setTransparencyIndex(0);
        QImage tile = p.tileSets()[0]->image(1);
        tile.setPixel(3, 2, 15);
        p.tileSets()[0]->setTileImage(1, tile);
        p.tileSets()[0]->tile(3)->setValue(-4);
        p.maps()[0]->setTile({0, 3}, {7, true, true, true, 12, true});
        p.maps()[0]->animatedBlocks()->list()[0]->setStartFrame(0);
        Map::PlacedSprite placed = p.maps()[0]->sprites()[1];
        placed.x = 46;
        placed.flip = true;
        p.maps()[0]->setSprite(1, placed);
        p.blockSets()[0]->animations()[0]->frame(0)->setIndex(1, 2, 100);
        p.spriteBanks()[0]->animations()[0]->setDelay(9);
        QImage sprite = p.spriteBanks()[0]->spriteImage(0, false, false, false);
        sprite.setPixel(0, 5, 0xFE); // whose upper half does not count
        p.spriteBanks()[0]->setImage(0, sprite);
        QImage image = p.images()[1]->image();
        image.bits()[image.bytesPerLine()] = 0xAB;
        p.images()[1]->setImage(image);
        p.images()[3]->setName("Wide");
        const auto id = [&p](int number) { return p.images()[number]->id().toString(); };
        QStringList changes{R"(-project "Sample")",
                            R"(+project "A\nB")",
                            "-colour 9 $0901 levels 0 2 3",
                            "+colour 9 $2681 levels 1 1 5 priority",
                            "-transparency none",
                            "+transparency 0",
                            "-01234567",
                            "+012f4567",
                            "-tile 3 offset 15 attributes $FF value 0",
                            "+tile 3 offset 15 attributes $FF value -4",
                            "-.*5 257f/3",
                            "+7rmf/12 .*4 257f/3",
                            R"(-animation "Door" at 1 1 size 3 2 start 1 delays 5 6)",
                            R"(+animation "Door" at 1 1 size 3 2 start 0 delays 5 6)",
                            R"(-sprite "" at 47 0 bank "Hero" sprite 2 offset 15 start 0 delays 0 0)",
                            R"(+sprite "" at 46 0 bank "Hero" sprite 2 flipped offset 15 start 0 delays 0 0)",
                            "-3m/3 4f/4 5r/5",
                            "+3m/3 4f/4 100r/5",
                            R"(-animation "Run" size 2 1 delay 1)",
                            R"(+animation "Run" size 2 1 delay 9)",
                            "-0*16",
                            "+e000000000000000",
                            "-00*320",
                            "+ab" + QString(638, u'0'),
                            R"(-image "Wide")",
                            R"(-image "Small")",
                            R"(+image "Wide" )" + id(2),
                            R"(+image "Wide" )" + id(3)};
        changes.sort();
        QCOMPARE(difference(before, described(p)), changes);
    }

private:
    std::unique_ptr<Project> m_project;
};

QUENMORA_TEST_MAIN(TestDescription)
#include "tst_description.moc"
