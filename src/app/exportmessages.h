#pragma once

#include <QList>
#include <QObject>
#include <QString>

class QStatusBar;

/// Says in the status bar what was exported, to which file, and how large it is. Files that were written at one
/// go are told together.
class ExportMessages : public QObject
{
    Q_OBJECT

public:
    explicit ExportMessages(QStatusBar *statusBar);

public slots:
    /// An asset of that name was written to a file.
    void add(const QString &asset, const QString &filePath);
    /// Shows what is known of an export otherwise.
    void show(const QString &message);

private:
    [[nodiscard]] QString text() const;

    struct Written
    {
        QString asset;
        QString filePath;
    };

    QStatusBar *m_statusBar;
    QList<Written> m_written; ///< since control was with the event loop
};
