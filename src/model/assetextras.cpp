#include "model/assetextras.h"

#include "model/colourcycle.h"
#include "model/project.h"
#include "model/projectextras.h"
#include "model/tileset.h"

#include <QJsonObject>

void dropExtrasOfGoneAssets(Project &project)
{
    for (const QString &name : {QStringLiteral("stamps"), QStringLiteral("terrains"), ColourCycles::Section}) {
        const QJsonObject all = project.extras()->section(name).toObject();
        QJsonObject kept = all;
        for (auto entry = all.constBegin(); entry != all.constEnd(); ++entry) {
            const QUuid id(entry.key());
            if (!id.isNull() && !project.tileSet(id) && !project.palette(id))
                kept.remove(entry.key());
        }
        if (kept != all)
            project.extras()->setSection(name, kept.isEmpty() ? QJsonValue(QJsonValue::Undefined) : QJsonValue(kept));
    }
}
