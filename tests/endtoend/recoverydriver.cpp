// What killrecovery.py runs and kills: somebody who works, rests and saves in the real window, and somebody who looks
// at what is left. What they see goes to the standard output, a JSON object a line.

#include "app/recoverykeeper.h"
#include "app/recoveryoffers.h"
#include "benchmarks/largeproject.h"
#include "benchmarks/level.h"
#include "preferences/generalpage.h"
#include "recovery/recoverycopy.h"
#include "store/contentdigest.h"
#include "store/zipfile.h"
#include "support/randomuser.h"
#include "ui/messagedialog.h"

#include <QtTest>
#include <QtWidgets>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <ctime>
#include <unistd.h>
#include <vector>

namespace {

constexpr QSize MapSize(2000, 2000);

/// Milliseconds in which this program could have gone on and others had the processors.
qint64 waited()
{
    QFile statistics("/proc/self/schedstat"); // nanoseconds running and waiting
    return statistics.open(QIODevice::ReadOnly) ? statistics.readAll().split(' ').value(1).toLongLong() / 1'000'000 : 0;
}

void say(QJsonObject event)
{
    event.insert("time", QDateTime::currentMSecsSinceEpoch());
    event.insert("waited", waited());
    const QByteArray line = QJsonDocument(event).toJson(QJsonDocument::Compact) + '\n';
    if (::write(STDOUT_FILENO, line.constData(), size_t(line.size()))
        != line.size()) // whole: there are several writers
        qFatal("cannot write");
}

QJsonObject checksums(const ProjectMembers &members)
{
    QJsonObject all;
    for (auto member = members.cbegin(); member != members.cend(); ++member) {
        const ContentKey key = ContentDigest::keyOf(member.value());
        all.insert(member.key(), QStringLiteral("%1-%2-%3").arg(key.high, 0, 16).arg(key.low, 0, 16).arg(key.size));
    }
    return all;
}

int make(const QString &fileName)
{
    ProjectStore store;
    Project &project = *store.newProject("Level");
    const QUuid palette = project.createPalette(CreateAction::DefaultNext, "Colours")->id();
    const auto tiles = project.createTileSet("Tiles", palette, LargeProject::TileCount, false);
    for (int i = 0; i < tiles->count(); ++i)
        tiles->setTileImage(i, LargeProject::picture({8, 8}, uint(i)));
    const auto map = project.createMap("Level", tiles->id(), MapSize);
    map->tileLayer()->restore(structures(MapSize));
    project.createSpriteBank(Quenmora::EightBit, "Sprites", palette);
    project.createImage(Quenmora::Layer2_320x256, "Title", palette);
    project.setOpenDocuments({map->id().toString()});
    return store.saveAs(fileName) ? 0 : 1;
}

/// Works at random until it is killed: a few actions, a rest, and every now and then a save.
class Worker : public QObject
{
public:
    Worker(const QString &fileName, quint32 seed, int interval, bool tells) : m_user(m_window, seed), m_tells(tells)
    {
        ProjectController *controller = m_controller;
        controller->setUnsavedAnswerCallback([](const QString &) { return ProjectController::Discard; });
        RecoveryKeeper *keeper = m_window.recoveryKeeper();
        keeper->setProperty("interval", interval);
        connect(keeper, &RecoveryKeeper::copyBegun, this, &Worker::sayContent);
        connect(keeper, &RecoveryKeeper::copyCompleted, this, [this] { say({{"event", "copied"}}); });
        connect(keeper, &RecoveryKeeper::failed, this, [this](const QString &text) { say({{"event", text}}); });
        if (m_window.recoveryOffers()->copies().empty())
            controller->openProject(fileName);
        else
            m_window.recoveryOffers()->recover(0);
        if (!controller->project())
            qFatal("no project");
        say({{"event", "ready"}, {"file", controller->filePath()}, {"modified", controller->isModified()}});
        connect(&m_timer, &QTimer::timeout, this, &Worker::act);
        m_timer.start(5);
    }

    [[nodiscard]] const RecoveryKeeper *keeper() { return m_window.recoveryKeeper(); }

private:
    void act()
    {
        m_window.messageDialog()->accept();
        if (m_rest-- > 0)
            return;
        QElapsedTimer time;
        time.start();
        const qint64 waitedBefore = waited();
        m_user.act();
        if (!PauseWatch::isFree()) // something was dropped, and the drag has taken the release
            QTest::mouseRelease(&m_window, Qt::LeftButton);
        const qint64 took = time.elapsed() - (waited() - waitedBefore);
        say({{"event", "act"}, {"action", m_user.lastAction()}, {"took", took}});
        if (m_user.number(6) == 0)
            m_rest = m_user.number(200); // a second at most
        if (m_user.number(30) == 0) {
            m_window.menus()->setEnabled(true);
            say({{"event", "save"}});
            m_controller->save();
            say({{"event", "savedone"}});
        }
    }
    void say(const QJsonObject &event) const
    {
        if (m_tells)
            ::say(event);
    }
    /// A child says what is copied, for that takes longer than any slice: it has the project as it is now, and goes on
    /// when this program is killed.
    void sayContent()
    {
        if (!m_tells)
            return;
        ::say({{"event", "copy"}, {"number", ++m_copies}});
        if (fork() == 0) {
            ::say({{"event", "content"},
                   {"number", m_copies},
                   {"members", checksums(serializeProject(*m_controller->project(), true))}});
            _exit(0);
        }
    }

    MainWindow m_window;
    ProjectController *m_controller = m_window.projectController();
    RandomUser m_user;
    bool m_tells;
    QTimer m_timer;
    int m_rest = 0;
    int m_copies = 0;
};

/// What a project is made of when it can be opened; else nothing.
QJsonObject opened(const MemberReader &read)
{
    Project project;
    QString problem;
    if (!readProject(project, read, problem))
        return {};
    ProjectMembers members;
    for (const QString &name : serializeProject(project, true).keys())
        members.insert(name, read(name));
    return checksums(members);
}

qint64 microseconds(clockid_t clock)
{
    timespec now{};
    clock_gettime(clock, &now);
    return qint64(now.tv_sec) * 1'000'000 + now.tv_nsec / 1000;
}

/// Notes how much work each slice of the keeper's is, and how much time passes in it: on a busy machine that of others,
/// too.
class SliceWatch : public QApplication
{
public:
    using QApplication::QApplication;

    void watch(const RecoveryKeeper *keeper) { m_keeper = keeper; }
    /// Of the slices, by clock.
    [[nodiscard]] const std::vector<qint64> &worked() const { return m_worked; }
    [[nodiscard]] const std::vector<qint64> &passed() const { return m_passed; }

    bool notify(QObject *receiver, QEvent *event) override
    {
        if (!m_keeper || event->type() != QEvent::Timer || receiver->parent() != m_keeper)
            return QApplication::notify(receiver, event);
        const qint64 begun = microseconds(CLOCK_MONOTONIC);
        const qint64 worked = microseconds(CLOCK_THREAD_CPUTIME_ID);
        const bool done = QApplication::notify(receiver, event);
        m_worked.push_back(microseconds(CLOCK_THREAD_CPUTIME_ID) - worked);
        m_passed.push_back(microseconds(CLOCK_MONOTONIC) - begun);
        return done;
    }

private:
    const RecoveryKeeper *m_keeper = nullptr;
    std::vector<qint64> m_worked;
    std::vector<qint64> m_passed;
};

/// Works at random for some seconds, and tells how long the slices were.
int measure(SliceWatch &application, const QString &fileName, quint32 seed, int seconds)
{
    Worker worker(fileName, seed, 1000, false);
    application.watch(worker.keeper());
    QTimer::singleShot(seconds * 1000, &application, &QApplication::quit);
    QApplication::exec();
    for (auto [name, slices] : {std::pair("of work", application.worked()), {"until the end", application.passed()}}) {
        std::sort(slices.begin(), slices.end());
        const auto part = [&slices](double share) { return slices[size_t(share * double(slices.size() - 1))]; };
        std::printf("%zu slices, us %s: median %lld, 99 %% %lld, 99.9 %% %lld, longest %lld\n", slices.size(), name,
                    part(0.5), part(0.99), part(0.999), slices.back());
    }
    return 0;
}

/// Tells what is left of a project after its program was killed.
int look(const QString &fileName)
{
    for (const auto &[event, name] : {std::pair{"file", fileName}, {"backup", fileName + ".bak"}}) {
        ZipFile archive;
        const auto read = [&archive](const QString &member) { return archive.read(member); };
        say({{"event", event}, {"members", archive.openForReading(name) ? opened(read) : QJsonObject()}});
    }
    for (RecoveryFolder &folder : RecoveryFolder::takeAbandoned(AppState::recoveryFolder())) {
        const RecoveryCopy copy(std::move(folder));
        const auto read = [&copy](const QString &name) { return copy.read(name); };
        say({{"event", "recovery"},
             {"state", copy.state()},
             {"begun", copy.manifest().time.toMSecsSinceEpoch()},
             {"members", copy.state() == RecoveryCopy::Whole ? opened(read) : QJsonObject()}});
    }
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    SliceWatch application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const QString task = arguments.value(1);
    const QString file = arguments.value(2);
    if (task == "make")
        return make(file);
    if (task == "look")
        return look(file);
    Update::UpdateChecker::setFeedAddress({});
    const quint32 seed = arguments.value(3).toUInt();
    if (task == "measure")
        return measure(application, file, seed, arguments.value(4).toInt());
    std::signal(SIGCHLD, SIG_IGN); // the children end by themselves
    const Worker worker(file, seed, arguments.value(4).toInt(), true);
    return QApplication::exec();
}
