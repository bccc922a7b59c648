#pragma once

#include <QByteArray>
#include <QDir>
#include <QJsonDocument>
#include <QObject>
#include <QStringList>

/// What outlives a run of the program: the layout of the window, recent projects and a few remembered
/// values in "state.json", the preferences in "preferences.json", and how people paint in "painting.json", all in
/// the folder ".config/quenmora" below the home folder.
///
/// Nothing is read before loadState(). Failures are logged and told by the results.
class AppState : public QObject
{
    Q_OBJECT

public:
    explicit AppState(QObject *parent = nullptr);

    /// Reads "state.json"; what it lacks takes its default. False, and all as it was, when the file
    /// cannot be opened, as on the first run.
    bool loadState();
    bool saveState() const;

    /// The content of "preferences.json", null when it cannot be read.
    [[nodiscard]] QJsonDocument loadPreferences() const;
    bool savePreferences(const QJsonDocument &preferences) const;

    /// The content of "painting.json", null when it cannot be read. The file is made when something is chosen.
    [[nodiscard]] QJsonDocument loadPainting() const;
    bool savePainting(const QJsonDocument &painting) const;

    /// The docks and toolbars, as QMainWindow::saveState() gives them.
    [[nodiscard]] QByteArray windowState() const { return m_windowState; }
    void setWindowState(const QByteArray &state) { m_windowState = state; }

    [[nodiscard]] QByteArray windowGeometry() const { return m_windowGeometry; }
    void setWindowGeometry(const QByteArray &geometry) { m_windowGeometry = geometry; }

    /// The magnification of the tile picker, as it was stored.
    [[nodiscard]] int tileZoom() const { return m_tileZoom; }
    void setTileZoom(int zoom) { m_tileZoom = zoom; }

    /// The folder for copies of projects, for the time after a crash.
    [[nodiscard]] static QString recoveryFolder();

    /// The file that keeps the keys which were chosen for commands.
    [[nodiscard]] QString shortcutsFile() const;

    /// Full paths of recent projects, the latest first.
    [[nodiscard]] QStringList recentFiles() const { return m_recentFiles; }
    void setRecentFiles(const QStringList &paths) { m_recentFiles = paths; }

    /// The folder in which a project was last looked for.
    [[nodiscard]] QString lastPath() const { return m_lastPath; }
    void setLastPath(const QString &path) { m_lastPath = path; }

private:
    static constexpr int DefaultTileZoom = 8;

    QDir m_folder;
    QByteArray m_windowState;
    QByteArray m_windowGeometry;
    int m_tileZoom = DefaultTileZoom;
    QStringList m_recentFiles;
    QString m_lastPath;
};
