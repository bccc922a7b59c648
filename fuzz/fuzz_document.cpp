// The reader of the project document. An input is the text of "project.json", then what the other members
// hold in the order in which they are asked for, all parted by the separator; the last part serves for all
// members after it. What could be read must come back when it is saved.

#include "model/project.h"
#include "store/projectdocument.h"

#include <QLoggingCategory>

namespace {

constexpr QByteArrayView Separator("\xFF\xFE\xFD\xFC");

QByteArrayList partsOf(const QByteArray &input)
{
    QByteArrayList parts;
    qsizetype start = 0;
    for (qsizetype end = input.indexOf(Separator); end >= 0; end = input.indexOf(Separator, start)) {
        parts.append(input.mid(start, end - start));
        start = end + Separator.size();
    }
    parts.append(input.mid(start));
    return parts;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uchar *bytes, size_t size)
{
    const QByteArrayList parts = partsOf(QByteArray(reinterpret_cast<const char *>(bytes), qsizetype(size)));
    qsizetype next = 0;
    const MemberReader read = [&](const QString &) { return parts.at(std::min(next++, parts.size() - 1)); };
    Project project;
    QString error;
    if (!readProject(project, read, error)) {
        if (error.isEmpty())
            qFatal("refused without a message");
        return 0;
    }
    const ProjectMembers members = serializeProject(project, true);
    Project again;
    if (!readProject(
            again, [&](const QString &name) { return members.value(name); }, error))
        qFatal("saved what cannot be read: %s", qPrintable(error));
    return 0;
}
