// What no list of cases thinks of: thousands of random actions in the real window, and after each of them
// what must always hold. A failure names its seed and step; QUENMORA_SEED repeats it, QUENMORA_SECONDS
// says for how long to go on.

#include "model/animatedblocks.h"
#include "nextdata/source.h"
#include "support/projectmembers.h"
#include "support/randomuser.h"
#include "support/windowscene.h"
#include "undo/editclock.h"

#include <algorithm>
#include <cstdio>
#include <optional>

namespace {

constexpr quint32 UsualSeed = 1;
constexpr int DefaultSeconds = 30;

/// The seconds that the environment asks for; 0 without.
int secondsAsked()
{
    return std::max(0, qEnvironmentVariableIntValue("QUENMORA_SECONDS"));
}

qint64 millisecondsToAct()
{
    return 1000 * qint64(secondsAsked() > 0 ? secondsAsked() : DefaultSeconds);
}

QStringList s_warnings;
QtMessageHandler s_previousHandler = nullptr;

/// Keeps what Qt and the program complain about.
void collectWarnings(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type == QtInfoMsg || type == QtDebugMsg || message.startsWith("This plugin does not support"))
        return; // the last of the platform without a display
    if (type == QtWarningMsg)
        s_warnings.append(message);
    s_previousHandler(type, context, message);
}

/// What a project saves, as far as it is its content, in copies of its own: pictures as indices, and the document.
struct Content
{
    explicit Content(const Project &project)
    {
        const ProjectSnapshot snapshot = snapshotOf(project, false);
        for (const ProjectMember &member : snapshot) {
            if (const auto *picture = std::get_if<QImage>(&member.content))
                members.insert(member.name, indices(*picture));
            else if (const auto *json = std::get_if<QJsonObject>(&member.content))
                document = *json;
            else
                members.insert(member.name, member.bytes());
        }
    }
    /// The members with the document as text, without the ids that a load makes anew.
    [[nodiscard]] ProjectMembers withText() const
    {
        ProjectMembers all = members;
        all.insert("project.json", textOf(document));
        return ProjectFile::withoutSpriteFrameIds(all);
    }
    bool operator==(const Content &) const = default;

    ProjectMembers members;
    QJsonObject document;
};

/// Which members differ, and where; empty when none does.
QString difference(const Content &first, const Content &last)
{
    if (first == last)
        return {}; // which is much faster than to compare texts
    const ProjectMembers before = first.withText();
    const ProjectMembers after = last.withText();
    if (before.keys() != after.keys())
        return "other members: " + before.keys().join(' ') + " and " + after.keys().join(' ');
    for (auto member = before.cbegin(); member != before.cend(); ++member) {
        const QByteArray &was = member.value();
        const QByteArray &is = after[member.key()];
        if (was == is)
            continue;
        const auto at = std::mismatch(was.cbegin(), was.cend(), is.cbegin(), is.cend()).first - was.cbegin();
        const auto part = [&](const QByteArray &bytes) {
            const QByteArray around = bytes.mid(std::max<qsizetype>(at - 200, 0), 260);
            return member.key().endsWith(".json") ? around : around.toHex();
        };
        return QStringLiteral("%1 at byte %2\nwas %3\nis  %4").arg(member.key()).arg(at).arg(part(was), part(is));
    }
    return {};
}

/// Keeps windows from painting, which takes most of the time, until they are let.
class PaintStop : public QObject
{
public:
    PaintStop() { qApp->installEventFilter(this); }

    void paintOnce()
    {
        m_lets = true;
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget *window : windows) {
            QEvent request(QEvent::UpdateRequest);
            QApplication::sendEvent(window, &request);
        }
        m_lets = false;
    }
    bool eventFilter(QObject *, QEvent *event) override { return event->type() == QEvent::UpdateRequest && !m_lets; }

private:
    bool m_lets = false;
};

} // namespace

class TestRandomActions : public QObject, protected WindowScene
{
    Q_OBJECT

public:
    TestRandomActions()
    {
        constexpr qint64 Grace = 240'000; // Qt Test ends a function that takes longer than it expects
        qputenv("QTEST_FUNCTION_TIMEOUT", QByteArray::number(millisecondsToAct() + Grace));
    }

private slots:
    void initTestCase()
    {
        std::printf("Random actions with QUENMORA_SEED=%u\n", m_seed);
        std::fflush(stdout);
        QHashSeed::setDeterministicGlobalSeed();
        EditClock::setSource([this] { return m_time; });
        s_previousHandler = qInstallMessageHandler(collectWarnings);
        openWindow();
        m_painting.emplace();
        controller()->setFileNameCallback([this] { return m_folder("game.quenmora"); });
        controller()->newProject("Game");
        s_warnings.clear();
    }

    void holdsWhateverIsDone()
    {
        const quint32 seed = m_seed;
        RandomUser user(*m_window, seed, [this](RandomUser::Effect effect) {
            if (effect != RandomUser::Lasting)
                noteFirst();
        });
        startJournal();
        QElapsedTimer timer;
        timer.start();
        QStringList trail;
        while (timer.elapsed() < millisecondsToAct()) {
            const QString problem = step(user);
            trail.append(user.lastAction());
            if (!problem.isEmpty()) {
                const QString last = trail.mid(std::max<qsizetype>(trail.size() - 15, 0)).join(", ");
                QFAIL(qPrintable(
                    QStringLiteral("Seed %1, step %2 (%3): %4").arg(seed).arg(trail.size()).arg(last, problem)));
            }
        }
        std::printf("%lld actions in %lld s\n", static_cast<long long>(trail.size()), timer.elapsed() / 1000LL);
    }

    void cleanupTestCase()
    {
        m_window.reset();
        qInstallMessageHandler(s_previousHandler);
        EditClock::setSource({});
    }

private:
    /// Whether the project has an asset of this id, or it is the null id of the scratch image.
    bool isDocument(const QUuid &id) { return id.isNull() || NextData::Source::find(project(), id); }

    /// Starts where undo cannot go back behind: something changed that is on no stack.
    void startJournal()
    {
        documents().setClean(); // nothing merges into a clean step
        m_indices.clear();
        record();
        m_journal.clear();
        m_first.reset();
    }
    /// Notes what the project holds there, once something is to be done that undo knows.
    void noteFirst()
    {
        if (!m_first)
            m_first.emplace(project());
    }

    void record()
    {
        const QList<QUndoStack *> stacks = documents().undoGroup()->stacks();
        for (QUndoStack *stack : stacks) {
            int &written = m_indices[stack];
            for (; written < stack->index(); ++written)
                m_journal.append(stack);
            written = stack->index();
        }
    }

    /// Lets the user act once, and tells what does not hold afterwards.
    QString step(RandomUser &user)
    {
        m_time += 3'600'000;
        const RandomUser::Effect effect = user.act();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (user.number(64) == 0)
            m_painting->paintOnce();
        if (effect == RandomUser::Lasting)
            startJournal();
        else
            record();

        checkMessages();
        checkReferences();
        checkViews();
        if (user.number(20) == 0)
            checkUndo(1 + user.number(8));
        if (user.number(60) == 0)
            checkUndo(m_journal.size());
        const int chance = user.number(400);
        if (chance < 2)
            checkSaving();
        if (chance == 1)
            reopen();
        return std::exchange(m_problems, {}).join('\n');
    }

    /// Notes what does not hold.
    void expect(bool holds, const QString &problem)
    {
        if (!holds)
            m_problems.append(problem);
    }
    void expectSame(const Content &before, const Content &after, const QString &when)
    {
        const QString changed = difference(before, after);
        expect(changed.isEmpty(), when + ": " + changed);
    }
    void checkMessages()
    {
        const QStringList refusals{"Palette In Use", "Tile Set In Use", "Objects in use"};
        for (; dialog()->isVisible(); dialog()->accept())
            expect(refusals.contains(dialog()->windowTitle()) || dialog()->text().contains("change places")
                       || dialog()->text().contains("exporting data") // which not every form can hold
                       || dialog()->detail().contains("has room for"), // not for all that is imported again
                   "message: " + dialog()->text() + " " + dialog()->detail());
        const QStringList warnings = std::exchange(s_warnings, {});
        expect(warnings.isEmpty(), warnings.join('\n'));
    }

    void checkReferences()
    {
        const auto palettes = project().palettes();
        const auto tileSets = project().tileSets();
        const auto blockSets = project().blockSets();
        const auto expectOneOf = [this](const auto &asset, const auto &assets, const QString &what) {
            expect(!asset || assets.contains(asset), what + " is not of the project");
        };
        for (const auto &image : project().images())
            expectOneOf(image->palette(), palettes, "the palette of an image");
        for (const auto &tileSet : tileSets) {
            expectOneOf(tileSet->palette(), palettes, "the palette of a tile set");
            for (const auto &blocks : tileSet->blockSets())
                expect(blockSets.contains(blocks), "a tile set knows a block set that is gone");
        }
        for (const auto &blocks : blockSets) {
            const QPointer<TileSet> tileSet = blocks->tileSet();
            expectOneOf(tileSet, tileSets, "the tile set of a block set");
            expect(!tileSet || tileSet->blockSets().contains(blocks->id()), "a tile set does not know its block set");
        }
        for (const auto &bank : project().spriteBanks()) {
            expectOneOf(bank->palette(), palettes, "the palette of a sprite bank");
            expect(bank->count() > 0, "a sprite bank without sprites");
            for (const auto &animation : bank->animations()) {
                expect(animation && animation->frameCount() > 0, "a sprite animation without frames");
                for (int frame = 0; frame < animation->frameCount(); ++frame)
                    expect(animation->frame(frame)->size() == animation->size(), "a frame of another size");
            }
        }
        checkMaps();
    }

    void checkMaps()
    {
        for (const auto &map : project().maps()) {
            expect(map->tileSet() && map->tileSet() == project().tileSet(map->tileSetId()),
                   "a map without its tile set");
            expect(map->objectLayer() && map->objectLayer()->size() == map->size(), "layers of different sizes");
            expect(!map->size().isEmpty(), "an empty map");
            for (const auto &placement : map->animatedBlocks()->list())
                expect(QRect(QPoint(), map->size()).intersects(placement->area()), "an animation beside the map");
            const int tiles = std::max(map->tileSet() ? map->tileSet()->count() : 0, 1);
            const auto shown = [tiles](const TileMap::TileData &cell) { return cell.index >= 0 && cell.index < tiles; };
            for (const TileMap::Row &row : map->tileLayer()->rows())
                expect(std::all_of(row.cbegin(), row.cend(), shown), "a cell shows a tile that is not there");
            for (const auto &sprite : map->sprites()) {
                const QPointer<SpriteBank> bank = project().spriteBank(sprite.bank);
                expect(!bank || !sprite.animation.isNull() || sprite.sprite < bank->count(),
                       "a placed sprite that is not there");
            }
        }
    }

    void checkViews()
    {
        const DocumentViews &views = m_window->views();
        const auto expectShown = [this](const auto *asset, const QString &view) {
            expect(!asset || isDocument(asset->id()), view + " shows an asset that is gone");
        };
        const auto expectPixels = [&](const Canvas *canvas, const QImage &picture, const QString &view) {
            expect(canvas->image().cacheKey() == picture.cacheKey() || indices(canvas->image()) == indices(picture),
                   view + " shows other pixels than the asset has");
        };
        const TileSet *tileSet = views.tileEditor->tileSet();
        const SpriteBank *bank = views.spriteEditor->sprites();
        expectShown(views.palette->palette(), "the palette dock");
        expectShown(views.tilePicker->grid()->tileSet(), "the tile picker");
        expectShown(tileSet, "the tile editor");
        expectShown(bank, "the sprite editor");
        if (tileSet && tileSet->tile(views.tileEditor->tileIndex()))
            expectPixels(views.tileEditor->canvas(), tileSet->image(views.tileEditor->tileIndex()), "the tile editor");
        if (bank) {
            const int index = views.spriteEditor->spriteIndex();
            expect(index >= 0 && index < bank->count(), "the sprite editor shows a sprite that is not there");
            expectPixels(views.spriteEditor->canvas(), bank->spriteImage(index, false, false, false),
                         "the sprite editor");
        }
        for (int tab = 0; tab < views.tabs->count(); ++tab) {
            QWidget *page = views.tabs->widget(tab);
            expect(isDocument(DocumentTabView::documentId(page)), "a tab shows an asset that is gone");
            if (const auto *editor = qobject_cast<ImageEditor::View *>(page))
                expectPixels(editor->canvas(), editor->image() ? editor->image()->image() : project().scratchImage(),
                             "an image editor");
        }
    }

    /// Undoes the last steps and does them again; when these are all, the first state must come back.
    void checkUndo(qsizetype depth)
    {
        if (!m_first)
            return;
        depth = std::min(depth, m_journal.size());
        const Content last(project());
        QStringList texts;
        for (qsizetype count = 1; count <= depth; ++count) {
            QUndoStack *stack = m_journal.at(m_journal.size() - count);
            texts.prepend(stack->undoText());
            stack->undo();
        }
        QCoreApplication::processEvents();
        checkReferences();
        checkViews();
        if (depth == m_journal.size())
            expectSame(*m_first, Content(project()), "undone to the first step, " + texts.join(", "));
        for (qsizetype count = depth; count > 0; --count)
            m_journal.at(m_journal.size() - count)->redo();
        QCoreApplication::processEvents();
        expectSame(last, Content(project()), "redone to the last step, " + texts.join(", "));
    }

    void checkSaving()
    {
        for (const auto &map : project().maps())
            map->restampAnimations(project().blockSets()); // as opening does, which clears what was drawn below them
        startJournal();
        noteFirst();
        controller()->save();
        expect(!controller()->isModified(), "modified after saving");
        expectSame(*m_first, Content(project()), "changed by saving");
        ProjectStore store;
        const Project *read = store.newProject({});
        expect(store.load(controller()->filePath()), "the saved file cannot be read");
        if (store.project())
            expectSame(*m_first, Content(*read), "the saved file");
    }

    void reopen()
    {
        const Content saved = *m_first;
        const QString file = controller()->filePath();
        controller()->close();
        controller()->openProject(file);
        QCoreApplication::processEvents();
        expectSame(saved, Content(project()), "changed by opening");
        expect(!controller()->isModified(), "modified after opening");
        startJournal();
    }

    /// A run among all tests does the same everywhere; one by hand looks for something new.
    static quint32 chosenSeed()
    {
        bool given = false;
        const quint32 seed = qEnvironmentVariable("QUENMORA_SEED").toUInt(&given);
        return given ? seed : secondsAsked() > 0 ? QRandomGenerator::system()->generate() : UsualSeed;
    }

    std::optional<PaintStop> m_painting;
    const quint32 m_seed = chosenSeed();
    qint64 m_time = 1; ///< an hour passes between two actions, so that no two of them merge

    // Since when all changes are on undo stacks: the steps in the order in which they were made.
    QList<QPointer<QUndoStack>> m_journal;
    QHash<QUndoStack *, int> m_indices; ///< how many steps of a stack have been written down
    std::optional<Content> m_first;
    QStringList m_problems; ///< what the last step has shown
};

QUENMORA_TEST_MAIN(TestRandomActions)
#include "tst_randomactions.moc"
