#include "app/projectcontroller.h"

#include "app/menus/filemenu.h"
#include "ui/replacing.h"
#include "ui/titlewidth.h"

#include <QFileDialog>
#include <QGuiApplication>
#include <QMessageBox>
#include <QRegularExpression>
#include <QWidget>

#include <utility>

namespace {

/// While it lives a widget is not repainted and the pointer tells to wait.
class Suspension
{
public:
    explicit Suspension(QWidget *widget) : m_widget(widget)
    {
        if (m_widget)
            m_widget->setUpdatesEnabled(false);
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    }
    Suspension(const Suspension &) = delete;
    Suspension &operator=(const Suspension &) = delete;
    ~Suspension()
    {
        QGuiApplication::restoreOverrideCursor();
        if (m_widget)
            m_widget->setUpdatesEnabled(true);
    }

private:
    QPointer<QWidget> m_widget;
};

/// A name of a file for a project, which may be called what no file can be.
QString proposedFileName(const QString &projectName)
{
    static const QRegularExpression forbidden(QStringLiteral("[/\\\\:*?\"<>|\\x00-\\x1f]"));
    constexpr int MostLetters = 60; // of up to four bytes each, of which a file's name has 255
    QString name = projectName.left(MostLetters).trimmed();
    name.replace(forbidden, QStringLiteral("_"));
    return (name.isEmpty() ? QStringLiteral("project") : name) + QStringLiteral(".quenmora");
}

} // namespace

ProjectController::ProjectController(QWidget *parentWidget, FileMenu *fileMenu)
    : QObject(parentWidget)
    , m_parentWidget(parentWidget)
    , m_fileMenu(fileMenu)
    , m_backup([] { return false; })
    , m_isClean([] { return true; })
    , m_markClean([] {})
    , m_ask([this](const QString &projectName) { return askAboutChanges(projectName); })
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

void ProjectController::setUnsavedAnswerCallback(std::function<UnsavedAnswer(const QString &)> ask)
{
    m_ask = std::move(ask);
}

void ProjectController::setFileNameCallback(std::function<QString()> chooseFile)
{
    m_chooseFile = std::move(chooseFile);
}

bool ProjectController::isModified() const
{
    return m_project && (!m_isClean() || m_store.fingerprint() != m_savedFingerprint);
}

bool ProjectController::confirmClose()
{
    if (!isModified())
        return true;
    switch (m_ask(m_project->name())) {
    case Save:
        save();
        return !isModified();
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
    if (!confirmClose())
        return;
    const Suspension suspension(m_parentWidget);
    if (!load(filePath))
        return;
    emit projectOpened(m_project);
    addToRecentProjects(filePath);
    markSaved();
}

void ProjectController::openBackup(const QString &filePath)
{
    if (!confirmClose())
        return;
    const Suspension suspension(m_parentWidget);
    if (!load(ProjectStore::backupOf(filePath)))
        return;
    m_store.setFileName({});
    m_proposedFile = filePath;
    emit projectOpened(m_project);
    m_savedFingerprint.clear();
    m_markClean();
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
    if (!m_project)
        return;
    emit aboutToSave();
    if (write())
        markSaved();
    emit saveFinished();
}

bool ProjectController::write()
{
    if (!filePath().isEmpty())
        return m_store.save(m_backup());
    const QString chosen = m_chooseFile();
    if (chosen.isEmpty() || !m_store.saveAs(chosen))
        return false;
    addToRecentProjects(filePath());
    return true;
}

void ProjectController::saveAs()
{
    const QString previous = filePath();
    m_store.setFileName({});
    save();
    if (filePath().isEmpty())
        m_store.setFileName(previous);
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
    emit projectClosed();
}

void ProjectController::markSaved()
{
    m_savedFingerprint = m_store.fingerprint();
    m_proposedFile.clear();
    m_markClean();
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
