#include "preferences/preferencesdialog.h"

#include "preferences/generalpage.h"
#include "preferences/mapeditorpage.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QJsonObject>
#include <QListWidget>
#include <QScreen>
#include <QShowEvent>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <utility>

PreferencesDialog::PreferencesDialog(QWidget *parent)
    : QDialog(parent)
    , m_pageList(new QListWidget)
    , m_pageStack(new QStackedWidget)
    , m_generalPage(new GeneralPage)
    , m_mapEditorPage(new MapEditorPage)
{
    setWindowTitle(tr("Preferences"));

    m_pageList->setAccessibleName(tr("Pages"));
    m_pageList->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    m_pageList->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Expanding);
    connect(m_pageList, &QListWidget::itemSelectionChanged, this, &PreferencesDialog::changePage);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *pages = new QHBoxLayout;
    pages->addWidget(m_pageList);
    pages->addWidget(m_pageStack, 1);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(pages);
    // before the buttons, as the keyboard is to reach them
    addPage(QStringLiteral("general"), m_generalPage);
    addPage(QStringLiteral("mapEditor"), m_mapEditorPage);
    layout->addWidget(buttons);
    // more where letters are large
    resize(sizeHint().expandedTo({560, 360}).boundedTo(screen()->availableSize() - QSize(40, 60)));
}

QJsonDocument PreferencesDialog::toJson() const
{
    QJsonObject settings;
    for (auto page = m_pages.cbegin(); page != m_pages.cend(); ++page) {
        if (page.value())
            settings.insert(page.key(), page.value()->toJson());
    }
    return QJsonDocument(settings);
}

void PreferencesDialog::fromJson(const QJsonDocument &document)
{
    if (document.isNull() || document.isEmpty())
        return;
    for (auto page = m_pages.cbegin(); page != m_pages.cend(); ++page) {
        if (page.value())
            page.value()->fromJson(document[page.key()].toObject());
    }
}

void PreferencesDialog::reject()
{
    // what an update check noted meanwhile was not set here
    const QString lastUpdateCheck = m_generalPage->lastUpdateCheck();
    const QString skippedVersion = m_generalPage->skippedVersion();
    fromJson(std::exchange(m_snapshot, {}));
    m_generalPage->setLastUpdateCheck(lastUpdateCheck);
    m_generalPage->setSkippedVersion(skippedVersion);
    QDialog::reject();
}

void PreferencesDialog::showEvent(QShowEvent *event)
{
    // A spontaneous event shows the dialog again after it was minimised: nothing has begun anew.
    if (!event->spontaneous())
        m_snapshot = toJson();
    QDialog::showEvent(event);
}

void PreferencesDialog::changePage()
{
    const QList<QListWidgetItem *> selected = m_pageList->selectedItems();
    if (selected.isEmpty())
        return;
    for (BasePreferencesPage *page : std::as_const(m_pages)) {
        if (page && page->windowTitle() == selected.first()->text())
            m_pageStack->setCurrentWidget(page);
    }
}

void PreferencesDialog::addPage(const QString &key, BasePreferencesPage *page)
{
    // Stored before the list changes, because its first item is selected at once.
    m_pages.insert(key, page);
    m_pageStack->addWidget(page);
    m_pageList->addItem(new QListWidgetItem(page->windowIcon(), page->windowTitle()));
    m_pageList->setCurrentRow(0);
}
