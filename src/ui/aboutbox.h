#pragma once

#include <QDialog>

class QLabel;

/// Says what the program is, which version of it this is and whose work it contains.
///
/// Name and version are those of the application object. A line below them tells how a check for a
/// newer version goes; whoever does the check starts it at shown() and reports with setStatus().
class AboutBox : public QDialog
{
    Q_OBJECT

public:
    explicit AboutBox(QWidget *parent = nullptr);

    [[nodiscard]] QString status() const;

public slots:
    void setStatus(const QString &status);

signals:
    /// The box has come up.
    void shown();

protected:
    void showEvent(QShowEvent *event) override;

private:
    QLabel *m_status;
};
