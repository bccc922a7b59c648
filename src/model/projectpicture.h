#pragma once

#include <QImage>
#include <QUuid>

class Project;

/// As large as such a picture usually is at most.
constexpr QSize ProjectPictureSize(128, 96);

/// A small picture by which a person knows a project again: part of a map or image, or sprites or tiles of it, that of
/// the asset with the id front if it can be shown. At most of that size; null for a project that has nothing to show.
[[nodiscard]] QImage projectPicture(const Project &project, const QUuid &front, const QSize &most = ProjectPictureSize);

/// The same with larger pixels, as many times as it fits into that size.
[[nodiscard]] QImage projectThumbnail(const Project &project, const QSize &most);
