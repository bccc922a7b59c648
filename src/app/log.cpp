#include "app/log.h"

#include <QDateTime>
#include <QFile>
#include <QTextStream>

#include <cstdio>

namespace {

struct LogFile
{
    LogFile()
        : file(QStringLiteral("log/application_%1.log")
                   .arg(QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd_hhmmss"))))
        , stream(&file)
    {
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            std::fprintf(stderr, "Could not open %s\n", file.fileName().toLocal8Bit().constData());
    }

    QFile file;
    QTextStream stream;
};

// messages still come while the program's statics are destroyed, so their handler must know
Q_GLOBAL_STATIC(LogFile, logFile)

/// What a kind of message is called in the log; null for a kind that is not logged.
const char *kindOf(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return "Debug";
    case QtInfoMsg:
        return "Info";
    case QtWarningMsg:
        return "Warning";
    case QtCriticalMsg:
        return "Critical";
    case QtFatalMsg:
        return "Fatal";
    }
    return nullptr;
}

} // namespace

QFile &installLogHandler()
{
    LogFile *log = logFile();
    qInstallMessageHandler(logMessageHandler);
    return log->file;
}

void logMessageHandler(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    const QByteArray text = message.toLocal8Bit();
    const char *kind = kindOf(type);
    if (!kind || (type == QtWarningMsg && text.startsWith("libpng warning:")))
        return;
    if (logFile.exists() && logFile->file.isOpen()) {
        logFile->stream << QTime::currentTime().toString(QStringLiteral("hh:mm:ss")) << ' ' << kind << ": " << message
                        << '\n';
        logFile->stream.flush();
    }
    std::fprintf(type == QtDebugMsg || type == QtInfoMsg ? stdout : stderr, "%s: %s\n", kind, text.constData());
}
