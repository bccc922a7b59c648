#pragma once

#include <QDialog>
#include <QQueue>

class QLabel;

/// The one dialog in which the program says that something failed.
///
/// It never blocks: showMessage() opens it and returns. A message that arrives while another is
/// being read waits for its turn; one that is already shown or waiting is not shown twice.
class MessageDialog : public QDialog
{
    Q_OBJECT

public:
    explicit MessageDialog(QWidget *parent = nullptr);

    /// The title used when none is given, "Warning!".
    [[nodiscard]] static QString defaultTitle();

    /// The message being shown, or shown last.
    [[nodiscard]] QString text() const;
    /// What stands below it: which file it is about, or why it happened; may be empty.
    [[nodiscard]] QString detail() const;

public slots:
    void showMessage(const QString &text, const QString &title = defaultTitle(), const QString &detail = {});

    void done(int result) override;

private:
    struct Message
    {
        QString text;
        QString title;
        QString detail;

        bool operator==(const Message &) const = default;
    };

    void display(const Message &message);

    QLabel *m_icon;
    QLabel *m_text;
    QLabel *m_detail;
    Message m_shown;
    QQueue<Message> m_waiting;
};
