#pragma once

#include <QtGlobal>

class QFile;
class QMessageLogContext;
class QString;

/// Sends Qt's messages to the console and to a log file of this run, "log/application_TIME.log" in the
/// current folder. Where the file cannot be created, that is said on standard error and the console
/// remains. The first call opens the file; every call returns it.
QFile &installLogHandler();

/// Writes one message, with its kind, to the console and with the time of day to the log file (once
/// installLogHandler() has opened it). What libpng warns about pictures is dropped.
void logMessageHandler(QtMsgType type, const QMessageLogContext &context, const QString &message);
