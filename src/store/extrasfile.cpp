#include "store/extrasfile.h"

#include "model/projectextras.h"
#include "model/sidefile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>
#include <QSaveFile>

namespace {

struct Content
{
    QByteArray bytes;
    QJsonObject sections;
    QString problem;
};

/// The name under which the texts are translated.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ExtrasFile)
};

Content contentOf(const QString &path)
{
    Content content;
    const QFileInfo info(path);
    if (!info.exists())
        return content;
    QFile file(path);
    if (!info.isFile() || info.size() > ExtrasFile::MaxBytes) {
        content.problem = Texts::tr("it is no file of at most 16 MiB");
    } else if (!file.open(QIODevice::ReadOnly)) {
        content.problem = file.errorString();
    } else {
        content.bytes = file.readAll();
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(content.bytes, &error);
        if (error.error != QJsonParseError::NoError)
            content.problem =
                Texts::tr("line %1: %2")
                    .arg(QString::number(content.bytes.first(error.offset).count('\n') + 1), error.errorString());
        else if (!document.isObject())
            content.problem = Texts::tr("it holds no object");
        content.sections = document.object();
    }
    return content;
}

} // namespace

QString ExtrasFile::pathFor(const QString &projectFile)
{
    return SideFile::pathFor(projectFile, QStringLiteral("extras"));
}

QString ExtrasFile::load(ProjectExtras &extras, const QString &projectFile)
{
    m_path = pathFor(projectFile);
    const Content content = contentOf(m_path);
    m_bytes = content.bytes;
    extras.setSections(content.sections);
    return content.problem;
}

QString ExtrasFile::save(ProjectExtras &extras, const QString &projectFile)
{
    const QString path = pathFor(projectFile);
    const bool isHere = path == m_path;
    if (isHere && extras.changedSections().isEmpty())
        return {};
    const Content there = contentOf(path);
    QJsonObject sections = extras.sections();
    if (isHere && there.problem.isEmpty() && there.bytes != m_bytes) {
        sections = there.sections;
        for (const QString &name : extras.changedSections()) {
            if (const QJsonValue content = extras.section(name); content.isUndefined())
                sections.remove(name);
            else
                sections.insert(name, content);
        }
    }
    if (const QString reason = there.problem.isEmpty() ? QString() : SideFile::keepAside(path); !reason.isEmpty())
        return reason;
    const QByteArray bytes = QJsonDocument(sections).toJson(QJsonDocument::Indented);
    if (bytes != there.bytes && !(sections.isEmpty() && !QFileInfo::exists(path))) {
        QSaveFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
            return file.errorString();
    }
    m_path = path;
    m_bytes = bytes;
    extras.setSections(sections);
    return {};
}
