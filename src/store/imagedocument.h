#pragma once

#include "store/projectdocument.h"

#include <QJsonObject>

class Image;
struct DocumentReader;

/// An image has its pixels in the member "images/%1.png", %1 being its id.
[[nodiscard]] QJsonObject writeImage(const Image &image, ProjectSnapshot &members);
[[nodiscard]] bool readImage(DocumentReader &reader, const QJsonObject &object);
