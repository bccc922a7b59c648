#include "preferences/generalpage.h"

#include "ui/svgiconengine.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QVBoxLayout>

namespace {

const QString DefaultInterval = QStringLiteral("weekly");

const QString BackupOnSaveKey = QStringLiteral("backupOnSave");
const QString VersionCheckEnabledKey = QStringLiteral("versionCheckEnabled");
const QString UpdateIntervalKey = QStringLiteral("updateInterval");
const QString SkippedVersionKey = QStringLiteral("skippedVersion");
const QString LastUpdateCheckKey = QStringLiteral("lastUpdateCheck");

} // namespace

GeneralPage::GeneralPage(QWidget *parent)
    : BasePreferencesPage(parent)
    , m_backupOnSave(new QCheckBox(tr("Create a backup when saving")))
    , m_versionCheckEnabled(new QCheckBox(tr("Check for updates on startup")))
    , m_updateInterval(new QComboBox)
{
    setWindowTitle(tr("General"));
    setWindowIcon(themedIcon(QStringLiteral(":/tb-new-file")));

    m_backupOnSave->setChecked(true);
    m_versionCheckEnabled->setChecked(true);
    m_updateInterval->addItem(tr("Daily"), QStringLiteral("daily"));
    m_updateInterval->addItem(tr("Weekly"), DefaultInterval);
    m_updateInterval->addItem(tr("Monthly"), QStringLiteral("monthly"));
    selectInterval(DefaultInterval);

    auto *general = new QGroupBox(tr("General Settings"));
    auto *generalLayout = new QVBoxLayout(general);
    generalLayout->addWidget(m_backupOnSave);

    auto *updates = new QGroupBox(tr("Updates"));
    auto *updatesLayout = new QFormLayout(updates);
    updatesLayout->addRow(m_versionCheckEnabled);
    updatesLayout->addRow(tr("Check frequency"), m_updateInterval);

    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->addWidget(general);
    layout->addWidget(updates);
    layout->addStretch();
    setWidget(content);
}

bool GeneralPage::backupOnSave() const
{
    return m_backupOnSave->isChecked();
}

bool GeneralPage::versionCheckEnabled() const
{
    return m_versionCheckEnabled->isChecked();
}

QString GeneralPage::updateInterval() const
{
    return m_updateInterval->currentData().toString();
}

QJsonObject GeneralPage::toJson() const
{
    return {
        {BackupOnSaveKey, backupOnSave()},       {VersionCheckEnabledKey, versionCheckEnabled()},
        {UpdateIntervalKey, updateInterval()},   {SkippedVersionKey, m_skippedVersion},
        {LastUpdateCheckKey, m_lastUpdateCheck},
    };
}

void GeneralPage::fromJson(const QJsonObject &settings)
{
    m_backupOnSave->setChecked(settings.value(BackupOnSaveKey).toBool(true));
    m_versionCheckEnabled->setChecked(settings.value(VersionCheckEnabledKey).toBool(true));
    selectInterval(settings.value(UpdateIntervalKey).toString(DefaultInterval));
    m_skippedVersion = settings.value(SkippedVersionKey).toString();
    m_lastUpdateCheck = settings.value(LastUpdateCheckKey).toString();
}

void GeneralPage::selectInterval(const QString &interval)
{
    constexpr auto exactly = Qt::MatchExactly | Qt::MatchCaseSensitive;
    const int index = m_updateInterval->findData(interval, Qt::UserRole, exactly);
    m_updateInterval->setCurrentIndex(index >= 0 ? index
                                                 : m_updateInterval->findData(DefaultInterval, Qt::UserRole, exactly));
}
