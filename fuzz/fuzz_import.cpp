// Files of any kind that are imported, from what they are taken for to the assets that they become. The first byte of
// an input chooses the kind, the second one seeds the options, the rest is the file.

#include "importing/addition.h"
#include "importing/filekind.h"
#include "importing/preview.h"
#include "model/project.h"

#include <QFile>
#include <QLoggingCategory>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <algorithm>

using namespace Importing;
using NextData::Option;

namespace {

QString written(const QByteArray &bytes)
{
    static const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("input")));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write the input");
    return file.fileName();
}

QMap<QString, QString> optionsOf(const FileKind &kind, quint32 seed)
{
    QRandomGenerator random(seed);
    QMap<QString, QString> options;
    for (const Option &option : kind.options) {
        if (random.bounded(2) == 0)
            continue;
        if (option.kind == Option::Kind::Choice)
            options.insert(option.id, option.choices[random.bounded(int(option.choices.size()))].id);
        else if (option.kind == Option::Kind::Number)
            options.insert(option.id, QString::number(random.bounded(option.least, std::min(option.most, 200) + 1)));
    }
    return options;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uchar *bytes, size_t size)
{
    if (size < 3)
        return 0;
    const auto file =
        ImportFile::open(written(QByteArray(reinterpret_cast<const char *>(bytes) + 2, qsizetype(size) - 2)));
    if (!file)
        return 0;
    (void)recognise(*file);
    const FileKind &kind = fileKinds().at(bytes[0] % fileKinds().size());
    const ImportChoices choices{.kind = kind.id, .options = optionsOf(kind, bytes[1]), .name = QStringLiteral("name")};
    Project project;
    if (const auto incoming = prepare(project, *file, choices)) {
        (void)previewOf(project, *incoming, choices);
        (void)addTo(project, *incoming, choices, {});
    }
    return 0;
}
