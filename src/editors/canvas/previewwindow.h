#pragma once

#include <QBasicTimer>
#include <QImage>
#include <QList>
#include <QPointer>
#include <QWidget>

#include <functional>

class QComboBox;

/// A small window beside an editor that shows what is being painted as it will look: repeated, in its place, in motion.
///
/// It asks for its picture anew whenever the widget that it follows is painted, and for moving pictures in time.
class PreviewWindow : public QWidget
{
    Q_OBJECT

public:
    struct Picture
    {
        QImage image; ///< null when there is nothing to show
        int interval = 0; ///< milliseconds until the next frame; 0 for a picture that stands still
        QString reason; ///< why there is nothing
    };
    /// Gives the frame of a number, which counts on and on.
    using Source = std::function<Picture(int frame)>;

    /// Follows a widget, above whose window it stays and with which, and with whose dock, it is hidden and shown. It
    /// opens beside it.
    explicit PreviewWindow(QWidget *followed);

    void addSource(const QString &name, const Source &source);
    /// What is shown; null when there is nothing.
    [[nodiscard]] QImage image() const { return m_picture.image; }
    void setVisible(bool visible) override;

signals:
    /// Somebody closed the window.
    void closed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    QSize sizeHint() const override;

private:
    /// Asks for the picture again.
    void refresh();
    /// Hides it while nobody sees what it follows.
    void follow(bool seen);
    void placeBeside();

    QPointer<QWidget> m_followed;
    QComboBox *m_chooser;
    QList<Source> m_sources;
    Picture m_picture;
    QBasicTimer m_timer;
    int m_interval = 0;
    int m_frame = 0;
    bool m_returns = false; ///< with the widget that it follows
    bool m_placed = false;
};
