#pragma once

#include "update/release.h"

#include <QDialog>

class QLabel;
class QPushButton;

/// Offers a newer release: to read about it, to fetch it, to skip it, or to think about it later.
class UpdateDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit UpdateDialog(QWidget *parent = nullptr);

    /// What is offered, and what runs now (date as ISO 8601 text).
    void setRelease(const Update::Release &release, const QString &currentVersion, const QString &currentReleaseDate);

signals:
    /// The user does not want to hear of this version again.
    void skipVersion(const QString &version);

private:
    Update::Release m_release;
    QLabel *m_heading;
    QLabel *m_detail;
    QPushButton *m_releaseNotes;
    QPushButton *m_download;
};
