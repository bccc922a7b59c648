#include "editors/map/paintkits.h"

#include "model/projectextras.h"

#include <QJsonObject>
#include <QScopedValueRollback>

namespace MapEditor {

namespace {

QString stampsSection()
{
    return QStringLiteral("stamps");
}

QString terrainsSection()
{
    return QStringLiteral("terrains");
}

} // namespace

void PaintKits::setProject(const QPointer<Project> &project)
{
    if (m_project)
        m_project->extras()->disconnect(this);
    qDeleteAll(m_kits);
    m_kits.clear();
    m_project = project;
    if (!project)
        return;
    connect(project->extras(), &ProjectExtras::sectionChanged, this, [this](const QString &name) {
        if (m_writing || (name != stampsSection() && name != terrainsSection()))
            return;
        for (const QPointer<PaintKit> &kit : std::as_const(m_kits)) {
            if (kit)
                read(*kit);
        }
    });
}

PaintKit *PaintKits::kitFor(TileSet *tileSet)
{
    if (!tileSet || !m_project)
        return nullptr;
    QPointer<PaintKit> &kit = m_kits[tileSet->id()];
    if (!kit || !kit->tileSet()) {
        kit = new PaintKit(tileSet, this);
        const QPointer<PaintKit> made = kit;
        read(*made);
        const QString id = tileSet->id().toString(QUuid::WithoutBraces);
        connect(made, &PaintKit::stampsChanged, this,
                [this, made, id] { write(stampsSection(), id, made->stampsToJson()); });
        connect(made, &PaintKit::terrainsChanged, this,
                [this, made, id] { write(terrainsSection(), id, made->terrainsToJson()); });
        connect(tileSet, &QObject::destroyed, made, &QObject::deleteLater);
    }
    return m_kits[tileSet->id()];
}

void PaintKits::read(PaintKit &kit) const
{
    const ProjectExtras &extras = *m_project->extras();
    const QString id = kit.tileSet() ? kit.tileSet()->id().toString(QUuid::WithoutBraces) : QString();
    kit.read(extras.section(stampsSection())[id].toArray(), extras.section(terrainsSection())[id].toArray());
}

void PaintKits::write(const QString &section, const QString &tileSet, const QJsonArray &content)
{
    if (!m_project)
        return;
    QJsonObject all = m_project->extras()->section(section).toObject();
    if (content.isEmpty())
        all.remove(tileSet);
    else
        all.insert(tileSet, content);
    if (all == m_project->extras()->section(section).toObject())
        return;
    const QScopedValueRollback writing(m_writing, true);
    m_project->extras()->setSection(section, all.isEmpty() ? QJsonValue(QJsonValue::Undefined) : QJsonValue(all));
}

} // namespace MapEditor
