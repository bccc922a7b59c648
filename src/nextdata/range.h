#pragma once

#include "nextdata/option.h"

#include <QByteArray>

namespace NextData {

/// Which of the numbered things of an asset, or of a file, are meant: tiles, or sprites.
struct Range
{
    int first = 0;
    int count = 0;

    /// The options "first" and "count".
    [[nodiscard]] static QList<Option> options();

    /// What these options choose of so many things; a failure when it is not there.
    [[nodiscard]] static Result<Range> chosen(const OptionValues &values, int available);

    /// The options for what is read of a file.
    [[nodiscard]] static QList<Option> readingOptions();
    /// What these options choose of the things in a file, each of which takes so many bytes; a failure when there is
    /// not one, or more are chosen than go into an asset.
    [[nodiscard]] static Result<Range> inFile(const OptionValues &values, const QByteArray &bytes, int thingBytes,
                                              int most);
    /// What is to be said of bytes behind the last whole thing; nothing when there are none.
    [[nodiscard]] static QStringList remarksOn(const QByteArray &bytes, int thingBytes);
};

} // namespace NextData
