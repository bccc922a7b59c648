#pragma once

#include "nextdata/names.h"
#include "nextdata/output.h"

using Options = QMap<QString, QString>;

template <typename Asset>
[[nodiscard]] NextData::Source sourceOf(const Project &project, const QPointer<Asset> &asset)
{
    return {project, static_cast<const Asset *>(asset.data())};
}

/// The files of an output, called level.bin where nothing else is asked for, or the reason why there are none.
[[nodiscard]] inline NextData::Result<QList<NextData::OutputFile>>
written(const QString &form, const NextData::Source &source, const Options &options = {},
        const QString &fileName = "level.bin", NextData::Names *names = nullptr)
{
    const NextData::Form *found = NextData::findForm(form);
    if (!found)
        qFatal("there is no form %s", qPrintable(form));
    const auto values = NextData::OptionValues::parse(found->options, options);
    if (!values)
        return values.failure();
    NextData::Names own;
    return NextData::write(*found, source, *values, fileName, names ? *names : own);
}

/// The bytes of all files of an output, whose size is told without making them; the reason where there are none.
[[nodiscard]] inline QByteArray writtenBytes(const QString &form, const NextData::Source &source,
                                             const Options &options = {})
{
    const auto files = written(form, source, options);
    if (!files)
        return files.reason().toUtf8();
    QByteArray bytes;
    for (const NextData::OutputFile &file : *files)
        bytes += file.bytes;
    const NextData::Form &found = *NextData::findForm(form);
    if (*sizeOf(found, source, *NextData::OptionValues::parse(found.options, options)) != bytes.size())
        qFatal("another size was told of %s", qPrintable(form));
    return bytes;
}
