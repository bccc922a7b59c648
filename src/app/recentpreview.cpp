#include "app/recentpreview.h"

#include "app/recentpictures.h"

#include <QAction>
#include <QDir>
#include <QHelpEvent>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QScreen>
#include <QToolTip>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr QPoint Distance(12, 16); ///< from the pointer

QString pathOf(const QAction *entry)
{
    return entry ? entry->property("filePath").toString() : QString();
}

} // namespace

RecentPreview::RecentPreview(QMenu *menu, RecentPictures *pictures)
    : QFrame(menu, Qt::ToolTip)
    , m_menu(menu)
    , m_pictures(pictures)
    , m_picture(new QLabel)
    , m_path(new QLabel)
{
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFrameShape(QFrame::Box);
    setPalette(QToolTip::palette());
    m_picture->setAlignment(Qt::AlignCenter);
    m_path->setTextFormat(Qt::PlainText);
    m_path->setForegroundRole(QPalette::ToolTipText);
    setBackgroundRole(QPalette::ToolTipBase);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addWidget(m_picture);
    layout->addWidget(m_path);
    menu->installEventFilter(this);
    connect(menu, &QMenu::aboutToShow, this, [this] {
        QStringList paths;
        for (const QAction *entry : m_menu->actions())
            paths << pathOf(entry);
        paths.removeAll(QString());
        m_pictures->want(paths);
    });
}

bool RecentPreview::showFor(QAction *entry, QPoint at)
{
    const QString path = pathOf(entry);
    const QImage picture = m_pictures->picture(path);
    if (picture.isNull())
        return false;
    m_shown = entry;
    m_picture->setPixmap(QPixmap::fromImage(picture));
    m_path->setText(QDir::toNativeSeparators(path));
    adjustSize();
    const QRect room = m_menu->screen()->availableGeometry();
    const QPoint most = room.bottomRight() - rect().bottomRight();
    const QPoint place = at + Distance;
    move(std::max(room.left(), std::min(place.x(), most.x())),
         place.y() <= most.y() ? place.y() : std::max(room.top(), at.y() - Distance.y() - height()));
    show();
    return true;
}

bool RecentPreview::eventFilter(QObject *, QEvent *event)
{
    switch (event->type()) {
    case QEvent::ToolTip: {
        const auto *help = static_cast<QHelpEvent *>(event);
        return showFor(m_menu->actionAt(help->pos()), help->globalPos());
    }
    case QEvent::MouseMove:
        if (m_shown != m_menu->actionAt(static_cast<QMouseEvent *>(event)->pos()))
            hide();
        return false;
    case QEvent::Leave:
    case QEvent::Hide:
    case QEvent::KeyPress:
    case QEvent::MouseButtonPress:
    case QEvent::Wheel:
        hide();
        return false;
    default:
        return false;
    }
}
