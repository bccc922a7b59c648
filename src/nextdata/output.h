#pragma once

#include "nextdata/form.h"

namespace NextData {

class Names;

/// A file to be written.
struct OutputFile
{
    QString name;
    QByteArray bytes;

    bool operator==(const OutputFile &) const = default;
};

/// The options that all forms have: dialect of text, label, padding, cutting into files.
[[nodiscard]] QList<Option> commonOptions();

/// The suffix that a file of this form with these options usually has, without the dot: the form's, or the dialect's.
[[nodiscard]] QString usualSuffix(const Form &form, const OptionValues &values);

/// The bytes that an output takes in the game, padding included, without making them. Of text it is the number of
/// bytes that the text stands for.
[[nodiscard]] Result<qint64> sizeOf(const Form &form, const Source &source, const OptionValues &values);

/// The files of an output. What is one file has the name that is given; several are numbered before the suffix
/// (level_0.map, level_1.map), and C text has a header beside its source (level.c, level.h). The name is a plain one,
/// without folders. Labels and constants in text are unique among those of all outputs that share the names.
[[nodiscard]] Result<QList<OutputFile>> write(const Form &form, const Source &source, const OptionValues &values,
                                              const QString &fileName, Names &names);

/// Takes the labels and constants that write() would take, without making the text.
void claimNames(const Form &form, const Source &source, const OptionValues &values, Names &names);

} // namespace NextData
