#include "command/exportcommand.h"
#include "language/catalogues.h"

#include <QCoreApplication>
#include <QTextStream>

#include <atomic>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <string_view>

#ifdef Q_OS_UNIX
#include <langinfo.h>
#endif

namespace {

std::atomic<bool> isInterrupted = false;

void interrupt(int)
{
    isInterrupted = true;
}

/// Build scripts often run in the locale "C", and newer versions of Qt complain of its encoding at every start.
void speakUtf8()
{
#ifdef Q_OS_UNIX
    std::setlocale(LC_ALL, "");
    if (nl_langinfo(CODESET) != std::string_view("UTF-8"))
        qputenv("LC_ALL", "C.UTF-8");
#endif
}

} // namespace

int main(int argc, char **argv)
{
    speakUtf8();
    QCoreApplication application(argc, argv);
    Catalogues::install(application);
    // what is being written is finished, so that nothing is left lying about
    std::signal(SIGINT, interrupt);
    std::signal(SIGTERM, interrupt);
    QTextStream out(stdout);
    QTextStream errors(stderr);
    const int result =
        ExportCommand(out, errors, [] { return isInterrupted.load(); }).run(QCoreApplication::arguments());
    out.flush();
    if (out.status() == QTextStream::Ok)
        return result;
    errors << QCoreApplication::translate("ExportCommand", "What there was to say could not be written") << '\n';
    return ExportCommand::Failed;
}
