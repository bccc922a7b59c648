#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QObject>
#include <QSet>
#include <QString>

/// What people keep with a project beyond what its file has room for (stamps, terrains, where pictures came from), as
/// named sections of JSON.
///
/// Whoever owns a section knows its shape and takes nothing in it for granted: it comes from a file that people edit
/// and merge. Sections that nobody here knows are kept. Changes are no edits: they are not undone, and do not make a
/// project modified.
class ProjectExtras : public QObject
{
    Q_OBJECT

public:
    explicit ProjectExtras(QObject *parent = nullptr) : QObject(parent) { }

    /// Undefined for a section that is not there.
    [[nodiscard]] QJsonValue section(const QString &name) const { return m_sections.value(name); }
    /// Undefined removes it.
    void setSection(const QString &name, const QJsonValue &content);

    [[nodiscard]] QJsonObject sections() const { return m_sections; }
    /// Takes all sections as they are in a file.
    void setSections(const QJsonObject &sections);

    /// The sections that were set since they were last in a file.
    [[nodiscard]] QSet<QString> changedSections() const { return m_changed; }

signals:
    void sectionChanged(const QString &name);

private:
    QJsonObject m_sections;
    QSet<QString> m_changed;
};
