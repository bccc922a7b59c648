#include "editors/canvas/previewwindow.h"

#include <QComboBox>
#include <QEvent>
#include <QPainter>
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
    } else if (event->type() == QEvent::Hide && !event->spontaneous()) {
        m_returns = isVisible();
        hide();
    } else if (event->type() == QEvent::Show && !event->spontaneous() && m_returns) {
        show();
    }
    return QWidget::eventFilter(watched, event);
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
