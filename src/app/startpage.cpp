#include "app/startpage.h"

#include "app/menus/filemenu.h"
#include "app/widebutton.h"
#include "ui/svgiconengine.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

/// A wide button that does what an entry of the menu does.
QToolButton *buttonFor(QAction *action, const QString &text, const QIcon &icon)
{
    QToolButton *button = wideButton(text, icon);
    button->setToolTip(action->toolTip());
    QObject::connect(button, &QToolButton::clicked, action, &QAction::trigger);
    return button;
}

QVBoxLayout *flushLayout(QWidget *widget)
{
    auto *layout = new QVBoxLayout(widget);
    layout->setContentsMargins({});
    layout->setSpacing(2);
    return layout;
}

} // namespace

StartPage::StartPage(const FileMenu *menu, QWidget *parent)
    : QWidget(parent)
    , m_menu(menu)
    , m_beginnings(new QWidget)
    , m_recent(new QWidget)
    , m_hint(new QLabel(tr("A double click in the Project dock opens an asset")))
{
    auto *recentBox = flushLayout(m_recent);
    auto *recentTitle = new QLabel(tr("Recent projects"));
    recentTitle->setForegroundRole(QPalette::PlaceholderText);
    recentTitle->setContentsMargins(4, 12, 0, 0);
    recentBox->addWidget(recentTitle);
    m_recentEntries = new QVBoxLayout;
    recentBox->addLayout(m_recentEntries);

    auto *beginnings = flushLayout(m_beginnings);
    beginnings->addWidget(buttonFor(menu->newAction(), tr("New project"), menu->newAction()->icon()));
    beginnings->addWidget(buttonFor(menu->openAction(), tr("Open a project"), menu->openAction()->icon()));
    beginnings->addWidget(m_recent);

    m_hint->setForegroundRole(QPalette::PlaceholderText);
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setWordWrap(true);
    auto *layout = new QVBoxLayout(this);
    layout->addStretch();
    layout->addWidget(m_beginnings, 0, Qt::AlignHCenter);
    layout->addWidget(m_hint);
    layout->addStretch();
    setProjectOpen(false);
    listRecentProjects();
    connect(menu, &FileMenu::recentFilesChanged, this, &StartPage::listRecentProjects);
}

void StartPage::setProjectOpen(bool open)
{
    m_beginnings->setVisible(!open);
    m_hint->setVisible(open);
}

void StartPage::setRecoveryList(QWidget *list)
{
    static_cast<QVBoxLayout *>(m_beginnings->layout())->insertWidget(0, list);
}

void StartPage::listRecentProjects()
{
    while (QLayoutItem *entry = m_recentEntries->takeAt(0)) {
        entry->widget()->deleteLater(); // one of them may have been clicked just now
        delete entry;
    }
    const QList<QAction *> projects = m_menu->recentProjectActions().mid(0, MostRecentProjects);
    for (QAction *project : projects)
        m_recentEntries->addWidget(buttonFor(project, project->text(), themedIcon(QStringLiteral(":/Project"))));
    m_recent->setVisible(!projects.isEmpty());
}
