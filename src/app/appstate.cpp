#include "app/appstate.h"

#include "app/platform.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QSaveFile>

#include <optional>

namespace {

const QString StateFile = QStringLiteral("state.json");
const QString PreferencesFile = QStringLiteral("preferences.json");
const QString PaintingFile = QStringLiteral("painting.json");
const QString ConfigurationFolder = QStringLiteral(".config/quenmora");
constexpr const char *StateWarning = "Open state.json failed";
constexpr const char *PaintingWarning = "Open painting.json failed";
constexpr const char *PreferencesWarning = "Failed to open settings json file";

/// The file as JSON, a null document when it is something else; nothing when it cannot be opened.
std::optional<QJsonDocument> readJson(const QString &path, const char *warning)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qWarning("%s", warning);
        return {};
    }
    return QJsonDocument::fromJson(file.readAll());
}

/// Replaces the file as a whole, or leaves it as it was when that fails.
bool writeJson(const QString &path, const QJsonDocument &document, const char *warning)
{
    QSaveFile file(path);
    file.setDirectWriteFallback(true); // for a file that is writable in a folder that is not
    if (!file.open(QIODevice::WriteOnly)) {
        qWarning("%s", warning);
        return false;
    }
    return file.write(document.toJson()) > 0 && file.commit();
}

QByteArray bytesOf(const QJsonObject &object, const QString &key)
{
    const QJsonValue value = object.value(key);
    if (!value.isString())
        qWarning("JSON object not found %s", qUtf8Printable(key));
    return QByteArray::fromBase64(value.toString().toUtf8());
}

QString base64(const QByteArray &bytes)
{
    return QString::fromLatin1(bytes.toBase64());
}

} // namespace

AppState::AppState(QObject *parent) : QObject(parent), m_folder(Platform::homeFolder().canonicalPath())
{
    // where the folder cannot be made, the files are kept in the home folder itself
    m_folder.mkpath(ConfigurationFolder);
    m_folder.cd(ConfigurationFolder);
}

QString AppState::recoveryFolder()
{
    return Platform::homeFolder().filePath(ConfigurationFolder + QStringLiteral("/recovery"));
}

QString AppState::shortcutsFile() const
{
    return m_folder.filePath(QStringLiteral("shortcuts.json"));
}

bool AppState::loadState()
{
    const auto document = readJson(m_folder.filePath(StateFile), StateWarning);
    if (!document)
        return false;
    const QJsonObject state = document->object();
    m_windowState = bytesOf(state, QStringLiteral("windowState"));
    m_windowGeometry = bytesOf(state, QStringLiteral("windowGeometry"));
    m_tileZoom = state.value(QStringLiteral("tileZoom")).toInt(DefaultTileZoom);
    m_lastPath = state.value(QStringLiteral("lastPath")).toString(QStringLiteral("~"));
    m_recentFiles.clear();
    for (const QJsonValue &path : state.value(QStringLiteral("recent")).toArray())
        m_recentFiles.append(path.toString());
    return true;
}

bool AppState::saveState() const
{
    const QJsonObject state{
        {QStringLiteral("windowState"), base64(m_windowState)},
        {QStringLiteral("windowGeometry"), base64(m_windowGeometry)},
        {QStringLiteral("tileZoom"), m_tileZoom},
        {QStringLiteral("recent"), QJsonArray::fromStringList(m_recentFiles)},
        {QStringLiteral("lastPath"), m_lastPath},
    };
    return writeJson(m_folder.filePath(StateFile), QJsonDocument(state), StateWarning);
}

QJsonDocument AppState::loadPreferences() const
{
    return readJson(m_folder.filePath(PreferencesFile), PreferencesWarning).value_or(QJsonDocument());
}

bool AppState::savePreferences(const QJsonDocument &preferences) const
{
    return writeJson(m_folder.filePath(PreferencesFile), preferences, PreferencesWarning);
}

QJsonDocument AppState::loadPainting() const
{
    const QString path = m_folder.filePath(PaintingFile);
    return QFile::exists(path) ? readJson(path, PaintingWarning).value_or(QJsonDocument()) : QJsonDocument();
}

bool AppState::savePainting(const QJsonDocument &painting) const
{
    return writeJson(m_folder.filePath(PaintingFile), painting, PaintingWarning);
}
