#include "editors/canvas/previewwindow.h"

#include <QComboBox>
#include <QDockWidget>
#include <QEvent>
#include <QPainter>
#include <QScreen>
#include <QTimerEvent>
#include <QVBoxLayout>

#include <algorithm>

PreviewWindow::PreviewWindow(QWidget *followed)
    : QWidget(followed, Qt::Tool)
    , m_followed(followed)
    , m_chooser(new QComboBox)
{
    setWindowTitle(tr("Preview"));
    setAttribute(Qt::WA_ShowWithoutActivating); // the keys are the editor's
    m_chooser->setAccessibleName(tr("What the preview shows"));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_chooser);
    layout->addStretch();
    followed->installEventFilter(this);
    for (QWidget *around = followed->parentWidget(); around; around = around->parentWidget()) {
        // behind another tab, what is in a dock is not hidden
        if (const auto *dock = qobject_cast<QDockWidget *>(around))
            connect(dock, &QDockWidget::visibilityChanged, this, &PreviewWindow::follow);
    }
    connect(m_chooser, &QComboBox::currentIndexChanged, this, [this] {
        m_frame = 0;
        refresh();
    });
}

QSize PreviewWindow::sizeHint() const
{
    return {220, 260};
}

void PreviewWindow::addSource(const QString &name, const Source &source)
{
    m_sources.append(source);
    m_chooser->addItem(name);
}

bool PreviewWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_followed)
        return QWidget::eventFilter(watched, event);
    if (event->type() == QEvent::Paint && isVisible()) {
        refresh();
    } else if ((event->type() == QEvent::Hide || event->type() == QEvent::Show) && !event->spontaneous()) {
        follow(event->type() == QEvent::Show);
    }
    return QWidget::eventFilter(watched, event);
}

void PreviewWindow::follow(bool seen)
{
    if (seen && m_returns) {
        show();
    } else if (!seen && isVisible()) {
        hide();
        m_returns = true;
    }
}

void PreviewWindow::setVisible(bool visible)
{
    m_returns = false;
    if (visible && !isVisible() && !m_placed)
        placeBeside();
    QWidget::setVisible(visible);
}

void PreviewWindow::placeBeside()
{
    constexpr int Gap = 16;
    m_placed = true;
    const QRect room = m_followed->screen()->availableGeometry();
    const QPoint corner = m_followed->mapToGlobal(QPoint(0, 0));
    const int left = corner.x() - sizeHint().width() - Gap;
    move(left >= room.left() ? left : corner.x() + m_followed->width() + Gap, corner.y());
}

void PreviewWindow::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    refresh();
}

void PreviewWindow::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    m_timer.stop();
}

void PreviewWindow::closeEvent(QCloseEvent *event)
{
    QWidget::closeEvent(event);
    emit closed();
}

void PreviewWindow::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_timer.timerId())
        return QWidget::timerEvent(event);
    ++m_frame;
    refresh();
}

void PreviewWindow::refresh()
{
    const int chosen = m_chooser->currentIndex();
    if (chosen < 0 || chosen >= m_sources.size())
        return;
    m_picture = m_sources.at(chosen)(m_frame);
    const int interval = isVisible() && !m_picture.image.isNull() ? m_picture.interval : 0;
    if (interval == 0)
        m_timer.stop();
    else if (!m_timer.isActive() || interval != m_interval)
        m_timer.start(interval, this);
    m_interval = interval;
    update();
}

void PreviewWindow::paintEvent(QPaintEvent *)
{
    constexpr int Margin = 8;
    QPainter painter(this);
    const QRect area = rect().adjusted(Margin, m_chooser->geometry().bottom() + Margin, -Margin, -Margin);
    const QSize size = m_picture.image.size();
    if (size.isEmpty()) {
        painter.drawText(area, Qt::AlignCenter | Qt::TextWordWrap, m_picture.reason);
        return;
    }
    // whole screen pixels for each of the picture's
    const int zoom = std::max(1, std::min(area.width() / size.width(), area.height() / size.height()));
    QRect target(QPoint(), size * zoom);
    target.moveCenter(area.center());
    painter.setClipRect(area);
    painter.drawImage(target, m_picture.image);
}
