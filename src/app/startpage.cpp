#include "app/startpage.h"

#include "app/installedfiles.h"
#include "app/menus/filemenu.h"
#include "app/menus/helpmenu.h"
#include "app/menus/menubar.h"
#include "app/recentpreview.h"
#include "app/shownpath.h"
#include "app/widebutton.h"
#include "ui/plaintext.h"
#include "ui/svgiconengine.h"

#include <QAction>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QScrollArea>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr QSize PictureSize(72, 48);
constexpr int CardWidth = 400;
constexpr int LeastCardWidth = 180;
constexpr int Spacing = 16; ///< on a card, beside its picture and its text

/// A wide button with a picture and two lines, which are shortened where there is no room for them.
class Card final : public QToolButton
{
public:
    Card(const QString &name, const QString &detail) : m_lines{name, detail}
    {
        makeWide(this);
        setIconSize(PictureSize);
        setAccessibleName(name);
        setText(name + u'\n' + detail); // for its height
    }

    QSize sizeHint() const override { return {CardWidth, QToolButton::sizeHint().height()}; }
    QSize minimumSizeHint() const override { return {LeastCardWidth, sizeHint().height()}; }

protected:
    void resizeEvent(QResizeEvent *event) override
    {
        QToolButton::resizeEvent(event);
        QStringList shown;
        for (const QString &line : m_lines)
            shown << withoutMnemonic(
                fontMetrics().elidedText(line, Qt::ElideMiddle, width() - PictureSize.width() - Spacing));
        setText(shown.join(u'\n'));
    }

private:
    QStringList m_lines;
};

/// A wide button that does what an entry of the menu does.
QToolButton *buttonFor(QAction *action, const QString &text)
{
    QToolButton *button = wideButton(text, action->icon());
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

QLabel *heading(const QString &text)
{
    auto *label = new QLabel(text);
    label->setForegroundRole(QPalette::PlaceholderText);
    label->setContentsMargins(4, 12, 0, 0);
    return label;
}

/// The name of the program beside its icon.
QWidget *title()
{
    auto *icon = new QLabel;
    icon->setPixmap(themedIcon(QStringLiteral(":Application")).pixmap(32, 32));
    auto *name = new QLabel(QCoreApplication::applicationName());
    QFont font = name->font();
    font.setBold(true);
    if (font.pointSizeF() > 0) // else its size is told in pixels
        font.setPointSizeF(font.pointSizeF() * 1.5);
    name->setFont(font);
    auto *row = new QWidget;
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(4, 0, 0, 8);
    layout->setSpacing(10);
    layout->addWidget(icon);
    layout->addWidget(name, 1);
    return row;
}

/// A picture in the middle of its place on a card; an icon where there is none.
QIcon framed(const QImage &picture, qreal ratio)
{
    QPixmap place(PictureSize * ratio);
    place.fill(Qt::transparent);
    QPainter painter(&place);
    if (picture.isNull()) {
        const QPixmap icon = themedIcon(QStringLiteral(":/Project")).pixmap(QSize(24, 24), ratio);
        painter.drawPixmap(
            QRectF({(place.width() - 24 * ratio) / 2, (place.height() - 24 * ratio) / 2}, QSizeF(24, 24) * ratio), icon,
            QRectF({}, icon.size()));
    } else {
        const QImage shown = picture.scaled(place.size(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
        painter.drawImage((place.width() - shown.width()) / 2, (place.height() - shown.height()) / 2, shown);
    }
    painter.end();
    place.setDevicePixelRatio(ratio);
    return QIcon(place);
}

} // namespace

StartPage::StartPage(const MenuBar &menus, QWidget *parent)
    : QWidget(parent)
    , m_menu(menus.fileMenu())
    , m_beginnings(new QWidget)
    , m_recent(new QWidget)
    , m_sampleGroup(new QWidget)
    , m_sampleFile(InstalledFiles::sampleProject())
    , m_hint(new QLabel(tr("A double click in the Project dock opens an asset")))
{
    auto *recentBox = flushLayout(m_recent);
    recentBox->addWidget(heading(tr("Recent projects")));
    m_recentEntries = new QVBoxLayout;
    m_recentEntries->setSpacing(2);
    recentBox->addLayout(m_recentEntries);

    auto *beginnings = flushLayout(m_beginnings);
    beginnings->addWidget(title());
    beginnings->addWidget(buttonFor(m_menu->newAction(), tr("New project")));
    beginnings->addWidget(buttonFor(m_menu->openAction(), tr("Open a project")));
    beginnings->addWidget(buttonFor(menus.helpMenu()->guideAction(), tr("Read the guide")));
    beginnings->addWidget(m_recent);
    auto *sampleBox = flushLayout(m_sampleGroup);
    sampleBox->addWidget(heading(tr("To look at and to play with")));
    m_sample = cardFor(menus.helpMenu()->sampleAction(), tr("The sample project"),
                       tr("A level, sprites and a title screen"), m_sampleFile);
    sampleBox->addWidget(m_sample);
    beginnings->addWidget(m_sampleGroup);
    m_sampleGroup->setHidden(m_sampleFile.isEmpty()); // not everybody installs it

    m_hint->setForegroundRole(QPalette::PlaceholderText);
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setWordWrap(true);
    auto *page = new QWidget;
    auto *pageLayout = new QVBoxLayout(page);
    pageLayout->addStretch();
    pageLayout->addWidget(m_beginnings, 0, Qt::AlignHCenter);
    pageLayout->addWidget(m_hint);
    pageLayout->addStretch();
    auto *scroller = new QScrollArea;
    scroller->setFrameShape(QFrame::NoFrame);
    scroller->setFocusPolicy(Qt::NoFocus); // what is in it has the keyboard
    scroller->setWidgetResizable(true);
    scroller->setWidget(page);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(scroller);

    new RecentPreview(m_menu->recentMenu(), &m_pictures);
    setProjectOpen(false);
    listRecentProjects();
    connect(m_menu, &FileMenu::recentFilesChanged, this, &StartPage::listRecentProjects);
    connect(&m_pictures, &RecentPictures::found, this, &StartPage::showPicture);
}

void StartPage::setProjectOpen(bool open)
{
    m_beginnings->setVisible(!open);
    m_hint->setVisible(open);
}

void StartPage::setRecoveryList(QWidget *list)
{
    static_cast<QVBoxLayout *>(m_beginnings->layout())->insertWidget(1, list);
}

QToolButton *StartPage::cardFor(QAction *action, const QString &name, const QString &detail, const QString &path)
{
    auto *card = new Card(name, detail);
    card->setIcon(framed(m_pictures.picture(path), devicePixelRatioF()));
    card->setToolTip(action->toolTip());
    connect(card, &QToolButton::clicked, action, &QAction::trigger);
    return card;
}

void StartPage::listRecentProjects()
{
    while (QLayoutItem *entry = m_recentEntries->takeAt(0)) {
        entry->widget()->deleteLater(); // one of them may have been clicked just now
        delete entry;
    }
    m_cards.clear();
    const QList<QAction *> projects = m_menu->recentProjectActions().mid(0, MostRecentProjects);
    for (QAction *project : projects) {
        const QString path = project->property("filePath").toString();
        const QFileInfo file(path);
        QToolButton *card = cardFor(project, file.fileName(), shownPath(file.path()), path);
        m_cards.insert(path, card);
        m_recentEntries->addWidget(card);
    }
    m_recent->setVisible(!projects.isEmpty());
    wantPictures();
}

void StartPage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    wantPictures();
}

void StartPage::wantPictures()
{
    if (isVisible() && !m_beginnings->isHidden())
        m_pictures.want(m_menu->recentFiles().mid(0, MostRecentProjects) << m_sampleFile);
}

void StartPage::showPicture(const QString &path)
{
    const QIcon icon = framed(m_pictures.picture(path), devicePixelRatioF());
    if (QToolButton *card = m_cards.value(path))
        card->setIcon(icon);
    if (path == m_sampleFile)
        m_sample->setIcon(icon);
}
