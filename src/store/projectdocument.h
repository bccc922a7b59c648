#pragma once

#include "store/projectmember.h"

#include <QByteArray>
#include <QMap>
#include <QString>

#include <functional>
#include <memory>

class Project;
class QIODevice;

/// The members of a project file by name, in the order in which they are written.
using ProjectMembers = QMap<QString, QByteArray>;

/// Gives the bytes of a member of a project file, and no bytes for a member that is not there.
using MemberReader = std::function<QByteArray(const QString &memberName)>;

/// Opens a member of a project file for reading from its start, as far as it is needed; null for one that is not
/// there. The device may be sequential, and the next one ends it.
using MemberOpener = std::function<std::unique_ptr<QIODevice>(const QString &memberName)>;

/// What a project file holds, as values, in the order in which it is written: the document "project.json", a PNG for
/// each tile set, sprite bank and image and for the scratch image, and the cells of each map. Costs what undo's
/// snapshots cost; the bytes are made from it piece by piece, whenever they are wanted (MemberBlocks).
///
/// The list of open documents, which is no part of the project's content, is left out on request.
[[nodiscard]] ProjectSnapshot snapshotOf(const Project &project, bool includeOpenDocuments);

/// Whether two snapshots hold the same content, whatever documents are open. Costs what they do not share.
[[nodiscard]] bool haveSameContent(const ProjectSnapshot &a, const ProjectSnapshot &b);

/// A snapshot as bytes by name, all of them in memory.
[[nodiscard]] ProjectMembers serializeProject(const Project &project, bool includeOpenDocuments);

/// The name of a member that could not be read again, or none: no PNG can hold some pictures, and readers refuse what
/// is larger than anything that they expect.
[[nodiscard]] QString unreadableMember(const ProjectSnapshot &snapshot);

/// Fills an empty project from the members of a project file.
///
/// The members may hold anything: a value that is missing or unusable takes its default, and what no
/// default can replace ends the reading with false and a message for the user in error. The project is
/// then half read and only fit to be destroyed.
[[nodiscard]] bool readProject(Project &project, const MemberOpener &members, QString &error);
[[nodiscard]] bool readProject(Project &project, const MemberReader &read, QString &error);
