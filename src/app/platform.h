#pragma once

#include <QApplication>
#include <QDir>
#include <QKeySequence>
#include <QList>
#include <QStandardPaths>

/// What this layer asks of the system beyond Qt.
namespace Platform {

/// The home folder of who runs the program. On Windows Qt asks the account for it, so that no test could have one of
/// its own; there it is what the environment says, as elsewhere.
inline QDir homeFolder()
{
#ifdef Q_OS_WIN
    const QString profile = qEnvironmentVariable("USERPROFILE");
    if (QDir::isAbsolutePath(profile) && QDir(profile).exists())
        return QDir(profile);
#endif
    return QDir::home();
}

/// Where programs keep what they can make again, each in a folder of its own; it is below the home folder on Windows,
/// too.
inline QDir cacheFolder()
{
#ifdef Q_OS_WIN
    return QDir(homeFolder().filePath(QStringLiteral("AppData/Local/cache")));
#else
    return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation));
#endif
}

/// Keys for a command for which other systems have standard ones and this one has none; else nothing.
inline QList<QKeySequence> keysWithoutStandard([[maybe_unused]] QKeySequence::StandardKey command)
{
#ifdef Q_OS_WIN
    switch (command) {
    case QKeySequence::SaveAs:
        return {Qt::CTRL | Qt::SHIFT | Qt::Key_S};
    case QKeySequence::Deselect:
        return {Qt::CTRL | Qt::SHIFT | Qt::Key_A};
    case QKeySequence::Quit:
        return {Qt::CTRL | Qt::Key_Q};
    default:
        break;
    }
#endif
    return {};
}

/// To be called before the application exists. Windows' own style knows no dark windows, and blurs at some scales.
inline void chooseStyle()
{
#ifdef Q_OS_WIN
    QApplication::setStyle(QStringLiteral("fusion"));
#endif
}

} // namespace Platform
