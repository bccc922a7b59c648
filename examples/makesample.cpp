// makesample PICTURES FILE: makes the sample project from its pictures. A file that holds just that already
// is not written: it changes with the pictures alone, not with the version of what deflates it.

#include "examples/sample.h"
#include "model/project.h"
#include "store/projectdocument.h"
#include "store/projectstore.h"
#include "store/zipfile.h"

#include <QCoreApplication>
#include <QTextStream>

#include <algorithm>

namespace {

bool holds(const QString &fileName, const ProjectMembers &members)
{
    ZipFile archive;
    return archive.openForReading(fileName)
        && std::all_of(members.keyValueBegin(), members.keyValueEnd(),
                       [&archive](const auto &member) { return archive.read(member.first) == member.second; });
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QTextStream out(stdout);
    QTextStream err(stderr);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        err << "Usage: makesample PICTURES FILE\n";
        return 2;
    }
    const QString fileName = arguments[2];

    ProjectStore store;
    QString error;
    QObject::connect(&store, &ProjectStore::saveError, [&error](const QString &message) { error = message; });
    const Project *project = store.newProject({});
    if (!buildSample(*store.project(), QDir(arguments[1]), error)) {
        err << error << '\n';
        return 1;
    }
    if (holds(fileName, serializeProject(*project, true))) {
        out << fileName << " is up to date\n";
        return 0;
    }
    if (!store.saveAs(fileName)) {
        err << fileName << ": " << error << '\n';
        return 1;
    }
    out << fileName << " made\n";
    return 0;
}
