#pragma once

#include <QWidget>

class QLabel;

/// A line for the status bar that tells of files which changed since they were imported, and offers to import them
/// again. It asks for no answer.
class ImportNotice : public QWidget
{
    Q_OBJECT

public:
    explicit ImportNotice(QWidget *parent = nullptr);

    /// Names the files; without any it hides.
    void tell(const QStringList &files);

    // No taller than a line of text: the status bar is not to grow when something is offered.
    QSize sizeHint() const override { return {QWidget::sizeHint().width(), fontMetrics().height()}; }
    QSize minimumSizeHint() const override { return {QWidget::minimumSizeHint().width(), fontMetrics().height()}; }

signals:
    void accepted();
    void dismissed();

private:
    QLabel *m_text;
};
