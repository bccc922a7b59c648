#include "app/recoverykeeper.h"

#include "app/projectcontroller.h"
#include "model/projectpicture.h"
#include "store/projectdocument.h"

#include <QDir>

#include <algorithm>

namespace {

/// Nanoseconds of a slice after which no further part of the work begins: one part may take milliseconds.
constexpr qint64 SliceTime = 300'000;

// In milliseconds
constexpr int SliceDistance = 1; ///< in which everything else has its turn
constexpr int WaitingTime = 20; ///< until the next look for a good moment
constexpr int Patience = 1000; ///< with somebody who does not rest: what is as late as that takes any free moment

/// Failures after which the time between two attempts no longer doubles.
constexpr int MostDoublings = 4;

} // namespace

RecoveryKeeper::RecoveryKeeper(ProjectController *controller, const QString &folder, QObject *parent)
    : QObject(parent)
    , m_controller(controller)
    , m_folder(folder)
{
    m_nextLook.setSingleShot(true);
    connect(&m_nextLook, &QTimer::timeout, this, &RecoveryKeeper::look);
    connect(&m_slices, &QTimer::timeout, this, &RecoveryKeeper::workOn);
    connect(controller, &ProjectController::projectOpened, this, &RecoveryKeeper::onProjectOpened);
    connect(controller, &ProjectController::projectClosed, this, &RecoveryKeeper::onProjectClosed);
    connect(controller, &ProjectController::aboutToSave, this, &RecoveryKeeper::onAboutToSave);
    controller->setUnmodifiedCallback([this] { onUnmodified(); });
    connect(controller, &ProjectController::saveFinished, this, &RecoveryKeeper::onSaveFinished);
}

// The project's life

void RecoveryKeeper::onProjectOpened()
{
    m_file = m_controller->filePath();
    m_saved.clear();
    m_copied.clear();
    m_sinceBegin.invalidate();
    m_sinceDue.invalidate();
    m_failures = 0;
    m_told = false;
    m_nextLook.start(m_interval);
}

void RecoveryKeeper::goOnFrom(RecoveryCopy copy)
{
    m_writer.emplace(std::move(copy));
    m_copied = contentNow();
}

void RecoveryKeeper::onProjectClosed()
{
    removeCopies();
    m_nextLook.stop();
}

void RecoveryKeeper::onUnmodified()
{
    removeCopies();
    m_file = m_controller->filePath();
    m_saved = contentNow();
}

void RecoveryKeeper::onAboutToSave()
{
    m_saving = true;
    m_saved.clear(); // until the file is whole again
    if (begin(contentNow()))
        finish(m_copier->run());
}

void RecoveryKeeper::onSaveFinished()
{
    m_saving = false;
}

void RecoveryKeeper::removeCopies()
{
    m_slices.stop();
    m_copier.reset();
    if (m_writer)
        m_writer->remove();
    m_writer.reset();
    m_copied.clear();
    m_sinceDue.invalidate();
}

// Copying

void RecoveryKeeper::lookSoon()
{
    if (!m_controller->project() || m_copier)
        return;
    const qint64 wait = m_sinceBegin.isValid() ? (qint64(m_interval) << m_failures) - m_sinceBegin.elapsed() : 0;
    const int soon = int(std::max<qint64>(wait, PauseWatch::Rest));
    if (!m_nextLook.isActive() || m_nextLook.remainingTime() > soon)
        m_nextLook.start(soon);
}

bool RecoveryKeeper::isGoodMoment() const
{
    const bool isLate = m_sinceDue.isValid() && m_sinceDue.hasExpired(Patience);
    return !m_saving && (isLate ? PauseWatch::isFree() : m_pause.isPaused());
}

void RecoveryKeeper::look()
{
    if (!m_controller->project())
        return;
    if (!m_sinceDue.isValid())
        m_sinceDue.start();
    if (m_copier || !isGoodMoment()) {
        m_nextLook.start(WaitingTime);
        return;
    }
    m_nextLook.start(m_interval << m_failures);
    const ProjectSnapshot content = contentNow();
    if (haveSameContent(content, m_saved)) { // what was changed was taken back
        if (m_writer)
            m_writer->giveUpAll();
        m_copied.clear();
    } else if (!haveSameContent(content, m_copied) && !begin(content)) {
        return;
    }
    if (!m_slices.isActive())
        m_slices.start(SliceDistance);
}

ProjectSnapshot RecoveryKeeper::contentNow()
{
    m_controller->project()->setOpenDocuments(m_shown().documents); // as saving does
    return snapshotOf(*m_controller->project(), true);
}

bool RecoveryKeeper::begin(const ProjectSnapshot &content)
{
    m_sinceBegin.start();
    m_copier.reset();
    if (m_writer && !m_writer->isInPlace())
        m_writer.reset(); // the folder vanished, and with it all that was in it
    if (!m_writer) {
        auto folder = RecoveryFolder::create(m_folder);
        if (!folder) {
            fail(tr("%1 cannot be written to").arg(QDir::toNativeSeparators(m_folder)));
            return false;
        }
        m_writer.emplace(std::move(*folder));
    }
    m_writer->giveUp();
    const Project *project = m_controller->project();
    RecoveryManifest manifest;
    manifest.projectName = project->name();
    manifest.projectFile = m_controller->filePath().isEmpty() ? m_file : m_controller->filePath();
    if (!m_saving)
        manifest.fileStamp = RecoveryManifest::stampOf(manifest.projectFile);
    manifest.time = QDateTime::currentDateTimeUtc();
    m_begun = content;
    m_copier = std::make_unique<RecoveryCopier>(*m_writer, m_controller->store()->keptBlocks(), content, manifest,
                                                projectPicture(*project, m_shown().front));
    emit copyBegun();
    return true;
}

void RecoveryKeeper::workOn()
{
    const bool isGood = isGoodMoment();
    if (const int distance = isGood ? SliceDistance : WaitingTime; m_slices.interval() != distance)
        m_slices.setInterval(distance);
    if (!isGood)
        return;
    QElapsedTimer time;
    time.start();
    do {
        if (m_copier)
            finish(m_copier->step());
        else if (!m_writer || !m_writer->tidy())
            rest();
    } while (m_slices.isActive() && time.nsecsElapsed() < SliceTime);
}

void RecoveryKeeper::rest()
{
    if (m_writer && !m_writer->hasCopies())
        removeCopies();
    m_slices.stop();
    m_sinceDue.invalidate();
}

void RecoveryKeeper::finish(RecoveryCopier::Progress progress)
{
    if (progress == RecoveryCopier::Working)
        return;
    m_copier.reset();
    m_slices.start(); // to clear away what is not needed any more
    if (progress == RecoveryCopier::Failed) {
        m_writer->giveUp();
        fail(m_writer->problem());
        return;
    }
    m_copied = m_begun;
    m_failures = 0;
    emit copyCompleted();
}

void RecoveryKeeper::fail(const QString &reason)
{
    m_failures = std::min(m_failures + 1, MostDoublings);
    m_nextLook.start(m_interval << m_failures);
    m_sinceDue.invalidate();
    if (!std::exchange(m_told, true))
        emit failed(tr("No copy for the time after a crash could be written: %1").arg(reason));
}
