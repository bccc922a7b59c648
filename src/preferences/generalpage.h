#pragma once

#include "preferences/basepreferencespage.h"

#include <QString>

class QCheckBox;
class QComboBox;

/// Settings of saving and of the update check, and what the update check remembers.
class GeneralPage final : public BasePreferencesPage
{
    Q_OBJECT

public:
    explicit GeneralPage(QWidget *parent = nullptr);

    /// Whether saving over a file keeps the previous one.
    [[nodiscard]] bool backupOnSave() const;
    /// Whether the program looks for updates when it starts.
    [[nodiscard]] bool versionCheckEnabled() const;
    /// "daily", "weekly" or "monthly".
    [[nodiscard]] QString updateInterval() const;

    /// The version that the user does not want to hear of again; empty when there is none.
    [[nodiscard]] QString skippedVersion() const { return m_skippedVersion; }
    void setSkippedVersion(const QString &version) { m_skippedVersion = version; }

    /// The UTC date of the last successful update check as ISO 8601 text; empty before the first.
    [[nodiscard]] QString lastUpdateCheck() const { return m_lastUpdateCheck; }
    void setLastUpdateCheck(const QString &date) { m_lastUpdateCheck = date; }

    [[nodiscard]] QJsonObject toJson() const override;
    /// A missing setting gets its default, an unknown interval becomes "weekly".
    void fromJson(const QJsonObject &settings) override;

private:
    void selectInterval(const QString &interval);

    QCheckBox *m_backupOnSave;
    QCheckBox *m_versionCheckEnabled;
    QComboBox *m_updateInterval;
    QString m_skippedVersion;
    QString m_lastUpdateCheck;
};
