#pragma once

#include "app/filestate.h"
#include "app/foreignchange.h"
#include "model/project.h"
#include "store/extrasfile.h"
#include "store/projectdocument.h"
#include "store/projectstore.h"

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>

class FileMenu;
class QFileDialog;
class QWidget;

/// Runs the life of a project as the user sees it: create, open, save, save as, close; and asks before
/// anything that would discard work, or another program's change of the project's file.
///
/// It knows nothing of the window: what it needs from there comes through callbacks, what it does it
/// tells by its signals. Why loading or saving failed is told by its store.
class ProjectController : public QObject
{
    Q_OBJECT

public:
    /// The user's answer to the question what becomes of unsaved changes.
    enum UnsavedAnswer { Save = 0, Discard = 1, Cancel = 2 };
    Q_ENUM(UnsavedAnswer)

    /// Takes its requests from the File menu, which remembers recent projects, when there is one. The
    /// parent widget owns the dialogs.
    explicit ProjectController(QWidget *parentWidget = nullptr, FileMenu *fileMenu = nullptr);

    /// True when the open project may be closed: it is unmodified, was saved, or is to be discarded.
    [[nodiscard]] bool confirmClose();

    /// Whether there is something to save: an undo stack that is not clean, or content that differs from
    /// what was last created, opened or saved, or a file that was seen to hold no longer what was. Which tabs are open
    /// does not count. Costs what was changed since.
    [[nodiscard]] bool isModified() const;

    /// The open project, or null.
    [[nodiscard]] Project *project() const { return m_project; }
    /// The file of the open project; empty for one that was never saved.
    [[nodiscard]] QString filePath() const { return m_store.fileName(); }
    [[nodiscard]] ProjectStore *store() { return &m_store; }

    /// Opens a copy of a project as the modified project that belongs to a file, or to none for an empty path. False
    /// when the open project was not to be closed, or the copy cannot be read.
    bool openCopy(const QString &copy, const QString &filePath);
    /// Opens a project that was not saved when the program crashed, as the modified one that it was, in place of the
    /// open one; saving asks before it replaces a file that another program changed since. False, and none is open,
    /// when the members cannot be read.
    bool openRecovered(const MemberReader &members, const QString &filePath, bool isFileChanged);

    /// Whether the previous version of the file is kept when saving.
    void setBackupCallback(std::function<bool()> backup);
    /// Whether every undo stack is clean, and marking all of them clean.
    void setCleanCallbacks(std::function<bool()> isClean, std::function<void()> markClean);
    /// Hears when the project is new, or as its file from now on.
    void setUnmodifiedCallback(std::function<void()> unmodified);
    /// Hears when what belongs to the project is about to be written beside its file.
    void setSavingExtrasCallback(std::function<void()> saving);
    /// Asks what becomes of the unsaved changes of the project of that name, in place of a message box.
    void setUnsavedAnswerCallback(std::function<UnsavedAnswer(const QString &)> ask);
    /// Asks what is to be done about a file that another program changed, in place of a message box.
    void setForeignChangeCallback(std::function<ForeignChange::Answer(const ForeignChange &)> ask);
    /// Chooses the file to save to, empty for none, in place of a file dialog.
    void setFileNameCallback(std::function<QString()> chooseFile);

public slots:
    void newProject(QString name);
    void openProject(QString filePath);
    /// Opens the backup of a project file, in place of one that cannot be opened, as a modified project that has no
    /// file: saving asks for one, proposes the one of that path, and so replaces neither the backup nor the file
    /// unasked.
    void openBackup(const QString &filePath);
    /// Opens the sample project as one that has no file: what is saved is a copy, in a place of the person's own.
    void openSample();
    /// Looks whether another program changed or removed the project's file since it was opened or saved, or since this
    /// was asked or told: asks or tells it then. Saving looks, too, and asks again where nothing was decided.
    void checkFile();
    void save();
    void saveAs();
    /// Closes the open project without asking.
    void close();

signals:
    void aboutToSave();
    /// Follows every aboutToSave(), whether or not anything was saved.
    void saveFinished();
    /// The project, which has a file, was saved to another one.
    void savedAs(const QString &previousFile, const QString &file);
    void projectOpened(Project *project);
    /// The project is about to be destroyed.
    void projectClosing();
    void projectClosed();
    void error(QString message);

private:
    void connectTo(FileMenu *fileMenu);
    /// Replaces the open project by the one of a file; without one when it cannot be read.
    [[nodiscard]] bool load(const QString &filePath);
    void open(const QString &filePath);
    /// Shows the project that was read, which is in no file as it is.
    void showModified();
    [[nodiscard]] bool hasUnsavedChanges() const;
    /// Takes the file as it is now for the project's own.
    void follow(const FileState &file);
    /// Looks at the project's file; true when its content is another than when it was last looked at.
    bool lookAtFile();
    [[nodiscard]] bool fileDiffers() const { return !m_seenFile.hasContentOf(m_file); }
    /// Asks about the change that was seen, and loads the file or settles that it may be replaced. False when the
    /// project is no longer to be saved.
    [[nodiscard]] bool settleForeignChange();
    void reload();
    void addToRecentProjects(const QString &filePath);
    void markSaved();
    // What is kept beside a project file.
    void loadExtras(const QString &file);
    void saveExtras();
    [[nodiscard]] bool write(const QString &file);
    [[nodiscard]] UnsavedAnswer askAboutChanges(const QString &projectName);
    [[nodiscard]] QString runSaveDialog();

    QPointer<QWidget> m_parentWidget;
    QPointer<FileMenu> m_fileMenu;
    ProjectStore m_store;
    QPointer<Project> m_project;
    ExtrasFile m_extrasFile;
    /// The content when the project was last created, opened or saved; empty for one that is in no file as it was.
    ProjectSnapshot m_saved;
    FileState m_file; ///< as it was when the project was last opened or saved
    FileState m_seenFile; ///< as it was when it was last looked at
    bool m_asking = false; ///< about a foreign change
    QString m_proposedFile; ///< to save a project without a file to; empty where its name proposes one
    QString m_sample; ///< the file of the sample project, while a project that began as it has none
    QPointer<QFileDialog> m_saveDialog; ///< made when first needed

    std::function<bool()> m_backup;
    std::function<bool()> m_isClean;
    std::function<void()> m_markClean;
    std::function<void()> m_unmodified;
    std::function<void()> m_savingExtras = [] {};
    std::function<UnsavedAnswer(const QString &)> m_ask;
    std::function<ForeignChange::Answer(const ForeignChange &)> m_askAboutForeignChange;
    std::function<QString()> m_chooseFile;
};
