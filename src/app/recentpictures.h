#pragma once

#include <QHash>
#include <QImage>
#include <QObject>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTimer>

/// Pictures of project files, by which people know them again, kept in the person's cache folder.
///
/// They are looked for when somebody wants them, one after the other while nothing else is to be done. quenmora-export
/// makes those that there are none of yet: another process, so that the window waits for none, and a damaged file costs
/// no more than its picture.
class RecentPictures : public QObject
{
    Q_OBJECT

public:
    static constexpr int Extent = 256; ///< along the longer side, at most
    static constexpr int MostKept = 50; ///< in the folder

    explicit RecentPictures(QObject *parent = nullptr);
    ~RecentPictures() override;

    /// Replaces the folder and the program.
    void setFolder(const QString &folder);
    void setProgram(const QString &program);

    /// The picture of a project file, as far as it was looked for; else null.
    [[nodiscard]] QImage picture(const QString &path) const { return m_known.value(path).picture; }

    /// Looks for the pictures of these files, before others, where they have changed since.
    void want(const QStringList &paths);

signals:
    void found(const QString &path);

private:
    struct Known
    {
        QString key;
        QImage picture;
    };

    void lookForNext();
    void make(const QString &path, const QString &file);
    void made(bool succeeded);
    void take(const QString &path, const QString &file);
    void tidy() const;
    [[nodiscard]] QString fileFor(const QString &key) const;

    QString m_folder;
    QString m_program;
    QHash<QString, Known> m_known; ///< by path; a null picture of a file of which none can be made
    QStringList m_wanted;
    QTimer m_next;
    QTimer m_patience; ///< with a process
    QProcess m_process;
    QString m_path; ///< of what is being made
};
