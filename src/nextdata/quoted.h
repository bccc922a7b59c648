#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QString>

namespace NextData {

/// A name in quotes as JSON has them: UTF-8 on one line, whatever it holds.
[[nodiscard]] inline QByteArray quoted(const QString &name)
{
    return QJsonDocument(QJsonArray{name}).toJson(QJsonDocument::Compact).sliced(1).chopped(1);
}

} // namespace NextData
