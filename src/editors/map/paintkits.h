#pragma once

#include "editors/map/paintkit.h"
#include "model/project.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QUuid>

namespace MapEditor {

/// The paint kits of a project, one a tile set, kept in the project's extras: the sections "stamps" and "terrains" have
/// a member for the id of each tile set that has some.
class PaintKits : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Those of another project, or of none.
    void setProject(const QPointer<Project> &project);
    /// Null for no tile set.
    [[nodiscard]] PaintKit *kitFor(TileSet *tileSet);

private:
    void read(PaintKit &kit) const;
    void write(const QString &section, const QString &tileSet, const QJsonArray &content);

    QPointer<Project> m_project;
    QHash<QUuid, QPointer<PaintKit>> m_kits;
    bool m_writing = false;
};

} // namespace MapEditor
