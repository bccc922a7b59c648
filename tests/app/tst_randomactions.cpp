// What no list of cases thinks of: thousands of random actions in the real window, and after each of them
// what must always hold. A failure names its seed and step; QUENMORA_SEED repeats it, QUENMORA_SECONDS
// says for how long to go on.

#include "model/animatedblocks.h"
#include "store/projectdocument.h"
#include "support/projectmembers.h"
#include "support/randomuser.h"
#include "support/testmain.h"
#include "ui/messagedialog.h"
#include "undo/editclock.h"

#include <QElapsedTimer>
#include <QHashSeed>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>
#include <QUndoGroup>
#include <QUndoStack>

#include <algorithm>
#include <cstdio>
#include <cstring>
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
    if (type == QtInfoMsg || type == QtDebugMsg)
        return;
    if (message.startsWith("This plugin does not support"))
        return; // of the platform without a display
    if (type == QtWarningMsg)
        s_warnings.append(message);
    s_previousHandler(type, context, message);
}

/// What a project saves, as far as it is its content: pictures as indices, no ids that a load makes anew.
ProjectMembers contentOf(const Project &project)
{
    ProjectMembers members = ProjectFile::withoutSpriteFrameIds(serializeProject(project, false));
    for (auto member = members.begin(); member != members.end(); ++member) {
        if (!member.key().endsWith(".png"))
            continue;
        const QImage picture = QImage::fromData(member.value());
        QByteArray pixels;
        for (int y = 0; y < picture.height(); ++y)
            pixels.append(reinterpret_cast<const char *>(picture.constScanLine(y)), picture.bytesPerLine());
        member.value() = pixels;
    }
    return members;
}

/// Which members differ, and where; empty when none does.
QString difference(const ProjectMembers &before, const ProjectMembers &after)
{
    if (before.keys() != after.keys())
        return "other members: " + before.keys().join(' ') + " and " + after.keys().join(' ');
    for (auto member = before.cbegin(); member != before.cend(); ++member) {
        const QByteArray &was = member.value();
        const QByteArray &is = after[member.key()];
        if (was == is)
            continue;
        qsizetype at = 0;
        while (at < std::min(was.size(), is.size()) && was.at(at) == is.at(at))
            ++at;
        const qsizetype from = std::max<qsizetype>(at - 200, 0);
        QString text =
            QStringLiteral("%1 at byte %2 (sizes %3 and %4)").arg(member.key()).arg(at).arg(was.size()).arg(is.size());
        if (!member.key().endsWith(".json"))
            text += ": " + was.mid(at, 16).toHex() + " and " + is.mid(at, 16).toHex();
        else
            text += "\nwas " + was.mid(from, 260) + "\nis  " + is.mid(from, 260);
        return text;
    }
    return {};
}

bool samePixels(const QImage &a, const QImage &b)
{
    if (a.size() != b.size())
        return false;
    for (int y = 0; y < a.height(); ++y) {
        if (memcmp(a.constScanLine(y), b.constScanLine(y), std::size_t(a.width())) != 0)
            return false;
    }
    return true;
}

} // namespace

class TestRandomActions : public QObject
{
    Q_OBJECT

public:
    TestRandomActions()
    {
        constexpr qint64 Grace = 240'000; // Qt Test ends a function that takes longer than it expects
        qputenv("QTEST_FUNCTION_TIMEOUT", QByteArray::number(millisecondsToAct() + Grace));
    }

private slots:
    void initTestCase();
    void holdsWhateverIsDone();
    void cleanupTestCase();

private:
    Project &project() { return *m_window->projectController()->project(); }
    QList<QUuid> documents();
    QHash<QUuid, int> stackIndices();
    void startJournal();
    void record();
    QString step(RandomUser &user);

    // Each returns what is wrong, or nothing.
    QString checkReferences();
    QString checkViews();
    QString checkMessages();
    QString checkUndo(int depth);
    QString checkSaving(bool reopen);

    QTemporaryDir m_folder;
    std::optional<MainWindow> m_window;
    qint64 m_time = 1; ///< an hour passes between two actions, so that no two of them merge

    // Since when all changes are on undo stacks: the steps in the order in which they were made.
    QList<QPointer<QUndoStack>> m_journal;
    QHash<QUuid, int> m_indices;
    ProjectMembers m_first;
};

void TestRandomActions::initTestCase()
{
    QHashSeed::setDeterministicGlobalSeed();
    Update::UpdateChecker::setFeedAddress({});
    EditClock::setSource([this] { return m_time; });
    s_previousHandler = qInstallMessageHandler(collectWarnings);
}

void TestRandomActions::cleanupTestCase()
{
    m_window.reset();
    qInstallMessageHandler(s_previousHandler);
    EditClock::setSource({});
}

void TestRandomActions::holdsWhateverIsDone()
{
    bool given = false;
    quint32 seed = quint32(qEnvironmentVariable("QUENMORA_SEED").toUInt(&given));
    // A run among all tests does the same everywhere; one by hand looks for something new.
    if (!given)
        seed = secondsAsked() > 0 ? QRandomGenerator::system()->generate() : UsualSeed;
    const qint64 milliseconds = millisecondsToAct();
    std::printf("Random actions with QUENMORA_SEED=%u\n", seed);
    std::fflush(stdout);

    m_window.emplace();
    m_window->projectController()->setUnsavedAnswerCallback([](const QString &) { return ProjectController::Discard; });
    m_window->projectController()->setFileNameCallback([this] { return m_folder.filePath("game.quenmora"); });
    m_window->projectController()->newProject("Game");
    RandomUser user(*m_window, seed);
    startJournal();
    s_warnings.clear();

    QElapsedTimer timer;
    timer.start();
    qint64 steps = 0;
    QStringList trail;
    while (timer.elapsed() < milliseconds) {
        const QString problem = step(user);
        ++steps;
        trail.append(user.lastAction());
        if (!problem.isEmpty()) {
            const QString last = trail.mid(std::max<qsizetype>(trail.size() - 15, 0)).join(", ");
            QFAIL(qPrintable(QStringLiteral("Seed %1, step %2 (%3): %4").arg(seed).arg(steps).arg(last, problem)));
        }
    }
    std::printf("%lld actions in %lld s\n", static_cast<long long>(steps), timer.elapsed() / 1000LL);
}

/// Lets the user act once, and tells what does not hold afterwards.
QString TestRandomActions::step(RandomUser &user)
{
    m_time += 3'600'000;
    const RandomUser::Effect effect = user.act();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    if (effect == RandomUser::Lasting)
        startJournal();
    else
        record();

    QStringList problems{checkMessages(), checkReferences(), checkViews()};
    if (user.number(20) == 0)
        problems.append(checkUndo(1 + user.number(8)));
    if (user.number(60) == 0)
        problems.append(checkUndo(int(m_journal.size())));
    if (const int chance = user.number(200); chance < 2)
        problems.append(checkSaving(chance == 1));
    problems.removeAll(QString());
    return problems.join('\n');
}

// The order of undo steps over all documents

QList<QUuid> TestRandomActions::documents()
{
    QList<QUuid> ids{QUuid()}; // of the scratch image
    const auto append = [&ids](const auto &assets) {
        for (const auto &asset : assets)
            ids.append(asset->id());
    };
    append(project().palettes());
    append(project().tileSets());
    append(project().maps());
    append(project().blockSets());
    append(project().spriteBanks());
    append(project().images());
    return ids;
}

QHash<QUuid, int> TestRandomActions::stackIndices()
{
    QHash<QUuid, int> indices;
    for (const QUuid &id : documents())
        indices.insert(id, m_window->documentController()->undoStackFor(id)->index());
    return indices;
}

/// Starts where undo cannot go back behind: something changed that is on no stack.
void TestRandomActions::startJournal()
{
    m_window->documentController()->setClean(); // nothing merges into a clean step
    m_journal.clear();
    m_indices = stackIndices();
    m_first = contentOf(project());
}

void TestRandomActions::record()
{
    const QHash<QUuid, int> indices = stackIndices();
    for (const QUuid &id : documents()) {
        for (int index = m_indices.value(id); index < indices.value(id); ++index)
            m_journal.append(m_window->documentController()->undoStackFor(id));
    }
    m_indices = indices;
}

QString TestRandomActions::checkUndo(int depth)
{
    depth = std::min(depth, int(m_journal.size()));
    if (depth == 0)
        return m_journal.isEmpty() ? difference(m_first, contentOf(project())) : QString();
    const ProjectMembers last = contentOf(project());
    QStringList texts;
    for (int count = 0; count < depth; ++count) {
        QUndoStack *stack = m_journal.at(m_journal.size() - 1 - count);
        texts.prepend(stack->undoText());
        stack->undo();
    }
    QCoreApplication::processEvents();
    QString problem = checkReferences() + checkViews();
    if (depth == m_journal.size()) {
        if (const QString changed = difference(m_first, contentOf(project())); !changed.isEmpty())
            problem += "undone to the first step: " + changed;
    }
    for (int count = depth; count > 0; --count)
        m_journal.at(m_journal.size() - count)->redo();
    QCoreApplication::processEvents();
    if (const QString changed = difference(last, contentOf(project())); !changed.isEmpty())
        problem += "redone to the last step: " + changed;
    if (!problem.isEmpty())
        problem = "after undo and redo of " + texts.join(", ") + ": " + problem;
    return problem;
}

// What must hold after every action

QString TestRandomActions::checkMessages()
{
    const QStringList refusals{"Palette In Use", "Tile Set In Use", "Objects in use"};
    QString problem;
    while (m_window->messageDialog()->isVisible()) {
        if (!refusals.contains(m_window->messageDialog()->windowTitle()))
            problem += "message: " + m_window->messageDialog()->text();
        m_window->messageDialog()->accept();
    }
    const QStringList warnings = std::exchange(s_warnings, {});
    return problem + warnings.join('\n');
}

QString TestRandomActions::checkReferences()
{
    QString problem;
    const auto check = [&problem](bool holds, const QString &text) {
        if (!holds)
            problem += text + '\n';
    };
    const auto isPalette = [this](const QPointer<Palette> &palette) {
        return !palette || project().palette(palette->id()) == palette;
    };
    for (const auto &tileSet : project().tileSets()) {
        check(isPalette(tileSet->palette()), "the palette of a tile set is not of the project");
        for (const auto &blocks : tileSet->blockSets())
            check(blocks && project().blocks(blocks->id()) == blocks, "a tile set knows a block set that is gone");
    }
    for (const auto &bank : project().spriteBanks()) {
        check(isPalette(bank->palette()), "the palette of a sprite bank is not of the project");
        check(bank->count() > 0, "a sprite bank without sprites");
        for (const auto &animation : bank->animations()) {
            check(animation && animation->frameCount() > 0, "a sprite animation without frames");
            for (int frame = 0; frame < animation->frameCount(); ++frame)
                check(animation->frame(frame)->size() == animation->size(), "a frame of another size");
        }
    }
    for (const auto &image : project().images())
        check(isPalette(image->palette()), "the palette of an image is not of the project");
    for (const auto &blocks : project().blockSets()) {
        const QPointer<TileSet> tileSet = blocks->tileSet();
        check(!tileSet || project().tileSet(tileSet->id()) == tileSet,
              "the tile set of a block set is not of the project");
        check(!tileSet || tileSet->blockSets().value(blocks->id()) == blocks, "a tile set does not know its block set");
    }
    for (const auto &map : project().maps()) {
        check(map->tileSet() && map->tileSet() == project().tileSet(map->tileSetId()), "a map without its tile set");
        check(map->objectLayer() && map->objectLayer()->size() == map->size(), "layers of different sizes");
        check(!map->size().isEmpty(), "an empty map");
        for (const auto &placement : map->animatedBlocks()->list())
            check(QRect(QPoint(0, 0), map->size()).intersects(placement->area()), "an animation beside the map");
        const int tiles = map->tileSet() ? map->tileSet()->count() : 0;
        for (const TileMap::Row &row : map->tileLayer()->rows()) {
            for (const TileMap::TileData &cell : row)
                check(cell.index >= 0 && cell.index < std::max(tiles, 1), "a cell shows a tile that is not there");
        }
        for (const auto &sprite : map->sprites()) {
            const QPointer<SpriteBank> bank = project().spriteBank(sprite.bank);
            check(!bank || !sprite.animation.isNull() || sprite.sprite < bank->count(),
                  "a placed sprite that is not there");
        }
    }
    return problem;
}

QString TestRandomActions::checkViews()
{
    QString problem;
    const auto check = [&problem](bool holds, const QString &text) {
        if (!holds)
            problem += text + '\n';
    };
    const DocumentViews &views = m_window->views();
    const QList<QUuid> ids = documents();
    const auto isShown = [&ids](const auto *asset) { return !asset || ids.contains(asset->id()); };
    check(isShown(views.palette->palette()), "the palette dock shows a palette that is gone");
    check(isShown(views.tilePicker->grid()->tileSet()), "the tile picker shows a tile set that is gone");
    const TileSet *tileSet = views.tileEditor->tileSet();
    check(isShown(tileSet), "the tile editor shows a tile set that is gone");
    if (tileSet && tileSet->tile(views.tileEditor->tileIndex()))
        check(samePixels(views.tileEditor->canvas()->image(), tileSet->image(views.tileEditor->tileIndex())),
              "the tile editor shows other pixels than the tile has");
    const SpriteBank *bank = views.spriteEditor->sprites();
    check(isShown(bank), "the sprite editor shows a bank that is gone");
    if (bank) {
        const int index = views.spriteEditor->spriteIndex();
        check(index >= 0 && index < bank->count(), "the sprite editor shows a sprite that is not there");
        check(samePixels(views.spriteEditor->canvas()->image(), bank->spriteImage(index, false, false, false)),
              "the sprite editor shows other pixels than the sprite has");
    }
    for (int tab = 0; tab < views.tabs->count(); ++tab) {
        QWidget *page = views.tabs->widget(tab);
        check(ids.contains(DocumentTabView::documentId(page)), "a tab shows an asset that is gone");
        if (const auto *imagePage = qobject_cast<ImageEditor::View *>(page)) {
            const QImage image = imagePage->image() ? imagePage->image()->image() : project().scratchImage();
            check(samePixels(imagePage->canvas()->image(), image),
                  "an image editor shows other pixels than the image has");
        }
    }
    return problem;
}

QString TestRandomActions::checkSaving(bool reopen)
{
    ProjectController *controller = m_window->projectController();
    for (const auto &map : project().maps())
        map->restampAnimations(project().blockSets()); // as opening does, which clears what was drawn below them
    startJournal();
    const ProjectMembers saved = contentOf(project());
    const QStringList tabs = m_window->views().tabs->openDocumentIds();
    controller->save();
    if (controller->isModified())
        return "modified after saving";
    if (const QString changed = difference(saved, contentOf(project())); !changed.isEmpty())
        return "changed by saving: " + changed;

    ProjectStore store;
    Project *read = store.newProject({});
    if (!store.load(controller->filePath()))
        return "the saved file cannot be read";
    if (const QString changed = difference(saved, contentOf(*read)); !changed.isEmpty())
        return "the saved file reads back different: " + changed;

    if (!reopen)
        return {};
    const QString file = controller->filePath();
    controller->close();
    controller->openProject(file);
    QCoreApplication::processEvents();
    if (!controller->project())
        return "the saved file cannot be opened";
    const QString changed = difference(saved, contentOf(project()));
    startJournal();
    if (!changed.isEmpty())
        return "changed by opening: " + changed;
    return controller->isModified() ? "modified after opening" : QString();
}

QUENMORA_TEST_MAIN(TestRandomActions)
#include "tst_randomactions.moc"
