#include "app/projectcontroller.h"

#include "app/installedfiles.h"
#include "app/menus/filemenu.h"
#include "model/assetextras.h"
#include "model/map.h"
#include "model/projectextras.h"
#include "nextdata/filenames.h"
#include "ui/busy.h"
#include "ui/replacing.h"
#include "ui/titlewidth.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <QWidget>

#include <utility>

namespace {

/// While it lives a widget is not repainted.
class Suspension
{
public:
    explicit Suspension(QWidget *widget) : m_widget(widget)
    {
        if (m_widget)
            m_widget->setUpdatesEnabled(false);
    }
    Suspension(const Suspension &) = delete;
    Suspension &operator=(const Suspension &) = delete;
    ~Suspension()
    {
        if (m_widget)
            m_widget->setUpdatesEnabled(true);
    }

private:
    QPointer<QWidget> m_widget;
};

/// A name of a file for a project, which may be called what no file can be.
QString proposedFileName(const QString &projectName)
{
    constexpr int MostLetters = 60; // of up to four bytes each, of which a file's name has 255
    return NextData::FileNames::fromAssetName(projectName.left(MostLetters).trimmed(), QStringLiteral("project"))
        + QStringLiteral(".quenmora");
}

QString opening(const QString &filePath)
{
    return ProjectController::tr("Opening %1…").arg(QFileInfo(filePath).fileName());
}

/// How much there is to save: next to maps nothing counts.
qint64 bytesOf(const Project &project)
{
    qint64 bytes = 0;
    for (const auto &map : project.maps())
        bytes += map->dataSize();
    return bytes;
}

} // namespace

ProjectController::ProjectController(QWidget *parentWidget, FileMenu *fileMenu)
    : QObject(parentWidget)
    , m_parentWidget(parentWidget)
    , m_fileMenu(fileMenu)
    , m_backup([] { return false; })
    , m_isClean([] { return true; })
    , m_markClean([] {})
    , m_unmodified([] {})
    , m_ask([this](const QString &projectName) { return askAboutChanges(projectName); })
    , m_askAboutForeignChange(
          [this](const ForeignChange &change) { return ::askAboutForeignChange(m_parentWidget, change); })
    , m_chooseFile([this] { return runSaveDialog(); })
{
    if (fileMenu)
        connectTo(fileMenu);
}

void ProjectController::connectTo(FileMenu *fileMenu)
{
    connect(fileMenu, &FileMenu::newProject, this, &ProjectController::newProject);
    connect(fileMenu, &FileMenu::openProject, this, &ProjectController::openProject);
    connect(fileMenu, &FileMenu::saveProject, this, &ProjectController::save);
    connect(fileMenu, &FileMenu::saveProjectAs, this, &ProjectController::saveAs);
    connect(fileMenu, &FileMenu::closeProject, this, [this] {
        if (confirmClose())
            close();
    });
}

void ProjectController::setBackupCallback(std::function<bool()> backup)
{
    m_backup = std::move(backup);
}

void ProjectController::setCleanCallbacks(std::function<bool()> isClean, std::function<void()> markClean)
{
    m_isClean = std::move(isClean);
    m_markClean = std::move(markClean);
}

void ProjectController::setSavingExtrasCallback(std::function<void()> saving)
{
    m_savingExtras = std::move(saving);
}

void ProjectController::setUnmodifiedCallback(std::function<void()> unmodified)
{
    m_unmodified = std::move(unmodified);
}

void ProjectController::setUnsavedAnswerCallback(std::function<UnsavedAnswer(const QString &)> ask)
{
    m_ask = std::move(ask);
}

void ProjectController::setForeignChangeCallback(std::function<ForeignChange::Answer(const ForeignChange &)> ask)
{
    m_askAboutForeignChange = std::move(ask);
}

void ProjectController::setFileNameCallback(std::function<QString()> chooseFile)
{
    m_chooseFile = std::move(chooseFile);
}

bool ProjectController::isModified() const
{
    return m_project && (fileDiffers() || hasUnsavedChanges());
}

bool ProjectController::hasUnsavedChanges() const
{
    return !m_isClean() || !haveSameContent(snapshotOf(*m_project, false), m_saved);
}

bool ProjectController::confirmClose()
{
    if (!isModified()) {
        saveExtras(); // they do not modify the project, and are not to be lost for that
        return true;
    }
    const QPointer<Project> asked = m_project;
    switch (m_ask(m_project->name())) {
    case Save:
        save();
        return asked && !isModified(); // a file that was loaded instead is to be looked at
    case Discard:
        return true;
    case Cancel:
        break;
    }
    return false;
}

void ProjectController::newProject(QString name)
{
    if (!confirmClose())
        return;
    close();
    m_project = m_store.newProject(name);
    if (!m_project) {
        emit error(tr("Unable to create a new project"));
        return;
    }
    emit projectOpened(m_project);
    markSaved();
}

void ProjectController::openProject(QString filePath)
{
    if (confirmClose())
        open(filePath);
}

void ProjectController::open(const QString &filePath)
{
    const Busy busy(m_parentWidget, opening(filePath));
    const Suspension suspension(m_parentWidget);
    const FileState file(filePath); // before it is read: what happens to it meanwhile is noticed then
    if (!load(filePath))
        return;
    follow(file);
    loadExtras(filePath);
    emit projectOpened(m_project);
    addToRecentProjects(filePath);
    markSaved();
}

bool ProjectController::openCopy(const QString &copy, const QString &filePath)
{
    if (!confirmClose())
        return false;
    const Busy busy(m_parentWidget, opening(copy));
    const Suspension suspension(m_parentWidget);
    if (!load(copy))
        return false;
    m_store.setFileName(filePath);
    showModified();
    return true;
}

bool ProjectController::openRecovered(const MemberReader &members, const QString &filePath, bool isFileChanged)
{
    close();
    const Busy busy(m_parentWidget, tr("Recovering the project…"));
    const Suspension suspension(m_parentWidget);
    m_project = m_store.newProject(tr("loading..."));
    if (QString problem; !readProject(*m_project, members, problem)) {
        m_store.close();
        m_project.clear();
        return false;
    }
    m_store.setFileName(filePath);
    showModified();
    if (isFileChanged)
        m_file = FileState(); // saving asks
    return true;
}

void ProjectController::showModified()
{
    follow(FileState(filePath()));
    loadExtras(filePath());
    emit projectOpened(m_project);
    m_saved.clear();
    m_markClean();
}

void ProjectController::openBackup(const QString &filePath)
{
    if (openCopy(ProjectStore::backupOf(filePath), {})) {
        m_proposedFile = filePath;
        loadExtras(filePath);
    }
}

void ProjectController::openSample()
{
    const QString sample = InstalledFiles::sampleProject();
    if (sample.isEmpty()) {
        emit error(tr("The sample project is not installed"));
        return;
    }
    if (!confirmClose())
        return;
    const Busy busy(m_parentWidget, opening(sample));
    const Suspension suspension(m_parentWidget);
    if (!load(sample))
        return;
    m_store.setFileName({});
    loadExtras(sample);
    m_sample = sample;
    emit projectOpened(m_project);
    markSaved(); // there is nothing to ask about before something was changed
}

bool ProjectController::load(const QString &filePath)
{
    close();
    m_project = m_store.newProject(tr("loading..."));
    if (m_store.load(filePath))
        return true;
    m_store.close();
    m_project.clear();
    return false;
}

void ProjectController::save()
{
    if (!m_project || (!filePath().isEmpty() && !settleForeignChange()))
        return;
    emit aboutToSave();
    const QString file = filePath().isEmpty() ? m_chooseFile() : filePath();
    if (!file.isEmpty()) {
        const Busy busy(m_parentWidget, tr("Saving %1…").arg(m_project->name()), bytesOf(*m_project));
        if (write(file)) {
            saveExtras();
            markSaved();
            if (!m_sample.isEmpty())
                emit savedAs(std::exchange(m_sample, {}), file);
        }
    }
    emit saveFinished();
}

bool ProjectController::write(const QString &file)
{
    const bool named = !filePath().isEmpty();
    const bool written = named ? m_store.save(m_backup()) : m_store.saveAs(file);
    if (written || file == m_file.fileName()) {
        const FileState left(file); // also what a failed save left behind is no foreign change
        if (!left.hasContentOf(m_file))
            m_saved.clear(); // until the save has succeeded nothing is safe
        follow(left);
    }
    if (written && !named)
        addToRecentProjects(file);
    return written;
}

void ProjectController::saveAs()
{
    const QString previous = filePath();
    m_store.setFileName({});
    save();
    if (filePath().isEmpty())
        m_store.setFileName(previous);
    else if (!previous.isEmpty() && filePath() != previous)
        emit savedAs(previous, filePath());
}

void ProjectController::close()
{
    if (!m_project)
        return;
    disconnect(m_project, &QObject::destroyed, nullptr, nullptr); // newer versions want this by name
    m_project->disconnect();
    emit projectClosing();
    m_store.close();
    m_project.clear();
    m_proposedFile.clear();
    m_sample.clear();
    m_extrasFile = {};
    follow({});
    emit projectClosed();
}

void ProjectController::markSaved()
{
    m_saved = snapshotOf(*m_project, false);
    m_proposedFile.clear();
    m_markClean();
    m_unmodified();
}

// What is kept beside the file

void ProjectController::loadExtras(const QString &file)
{
    const QString problem = file.isEmpty() ? QString() : m_extrasFile.load(*m_project->extras(), file);
    if (!problem.isEmpty())
        emit error(tr("What is kept beside the project cannot be read: %1\nThe project itself is whole.\n%2")
                       .arg(problem, QDir::toNativeSeparators(ExtrasFile::pathFor(file))));
}

void ProjectController::saveExtras()
{
    if (!m_project || filePath().isEmpty())
        return;
    dropExtrasOfGoneAssets(*m_project);
    m_savingExtras();
    const QString problem = m_extrasFile.save(*m_project->extras(), filePath());
    if (!problem.isEmpty())
        emit error(tr("What is kept beside the project cannot be written: %1\n%2")
                       .arg(problem, QDir::toNativeSeparators(ExtrasFile::pathFor(filePath()))));
}

// What other programs do to the file

void ProjectController::follow(const FileState &file)
{
    m_file = file;
    m_seenFile = file;
}

bool ProjectController::lookAtFile()
{
    if (m_seenFile.isCurrent())
        return false;
    const FileState before = std::exchange(m_seenFile, FileState(filePath()));
    return !m_seenFile.hasContentOf(before);
}

void ProjectController::checkFile()
{
    if (!m_project || filePath().isEmpty() || m_asking || !lookAtFile() || !fileDiffers())
        return;
    if (m_seenFile.exists()) {
        static_cast<void>(settleForeignChange());
    } else {
        emit error(tr("Another program removed or renamed the file of this project, which saving writes again:\n%1")
                       .arg(QDir::toNativeSeparators(filePath())));
    }
}

bool ProjectController::settleForeignChange()
{
    if (m_asking)
        return false;
    const QScopedValueRollback asking(m_asking, true);
    // it may change again while the question is read
    for (lookAtFile(); fileDiffers(); lookAtFile()) {
        if (!m_seenFile.exists())
            return true;
        const QPointer<Project> asked = m_project;
        const ForeignChange::Answer answer = m_askAboutForeignChange({filePath(), hasUnsavedChanges()});
        if (!asked || answer == ForeignChange::Cancel)
            return false;
        if (answer == ForeignChange::Load) {
            reload();
            return false;
        }
        m_file = m_seenFile;
        m_saved.clear(); // the project is in no file any more
    }
    return true;
}

void ProjectController::reload()
{
    const QString file = filePath();
    const Busy busy(m_parentWidget, opening(file));
    // A file that cannot be read must not cost the project that is here.
    ProjectStore trial;
    trial.newProject({});
    QString problem;
    connect(&trial, &ProjectStore::loadError, this, [&problem](const QString &message) { problem = message; });
    if (trial.load(file))
        open(file);
    else
        emit error(tr("The file cannot be loaded, and the project stays as it is here: %1").arg(problem));
}

void ProjectController::addToRecentProjects(const QString &filePath)
{
    if (m_fileMenu)
        m_fileMenu->addRecentFile(filePath);
}

ProjectController::UnsavedAnswer ProjectController::askAboutChanges(const QString &projectName)
{
    QMessageBox box(QMessageBox::Warning, tr("Unsaved Changes"),
                    tr("Save the changes to %1 before closing it?").arg(projectName),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, m_parentWidget);
    box.setDefaultButton(QMessageBox::Save);
    box.setTextFormat(Qt::PlainText); // the name comes from a file
    widenForTitle(box);
    switch (box.exec()) {
    case QMessageBox::Save:
        return Save;
    case QMessageBox::Discard:
        return Discard;
    default:
        return Cancel;
    }
}

QString ProjectController::runSaveDialog()
{
    if (!m_saveDialog) {
        m_saveDialog = new QFileDialog(m_parentWidget, tr("Save project"), QString(), tr("Project file (*.quenmora)"));
        m_saveDialog->setAcceptMode(QFileDialog::AcceptSave);
        m_saveDialog->setDefaultSuffix(QStringLiteral("quenmora"));
    }
    m_saveDialog->selectFile(m_proposedFile.isEmpty() ? proposedFileName(m_project ? m_project->name() : QString())
                                                      : m_proposedFile);
    while (m_saveDialog->exec() == QDialog::Accepted) {
        if (mayReplaceChosenFile(*m_saveDialog))
            return m_saveDialog->selectedFiles().value(0);
    }
    return {};
}
