#pragma once

#include <QString>

/// The version of this program, such as "0.7.0.0"; a pre-release has a suffix, such as "0.8.0.0-beta2".
[[nodiscard]] QString appVersion();

/// The day on which this version was released, as ISO 8601 date text.
[[nodiscard]] QString appReleaseDate();

/// The release channel of this version.
[[nodiscard]] QString appChannel();

/// What the program calls itself and its windows: name, version and release date.
[[nodiscard]] QString appDisplayName();

/// The release channel that the suffix of a version stands for: "alpha", "beta", "rc", else "stable".
[[nodiscard]] QString channelOfVersion(const QString &version);
