#include "command/exportcommand.h"
#include "command/platform.h"
#include "language/catalogues.h"

#include <QCoreApplication>
#include <QTextStream>

#include <atomic>
#include <csignal>
#include <cstdio>

namespace {

std::atomic<bool> isInterrupted = false;

void interrupt(int)
{
    isInterrupted = true;
}

} // namespace

int main(int argc, char **argv)
{
    Platform::speakUtf8();
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
