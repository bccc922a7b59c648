#pragma once

#include <QImage>
#include <QUuid>

class Project;

/// A small picture by which a person knows a project again: part of a map or image, or sprites or tiles of it, that of
/// the asset with the id front if it can be shown. Null for a project that has nothing to show.
[[nodiscard]] QImage projectPicture(const Project &project, const QUuid &front);

/// The largest that such a picture is.
constexpr QSize ProjectPictureSize(128, 96);
