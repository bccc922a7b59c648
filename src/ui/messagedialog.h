#pragma once

#include <QDialog>
#include <QQueue>

#include <functional>

class QLabel;
class QPushButton;

/// The one dialog in which the program says that something failed.
///
/// It never blocks: showMessage() opens it and returns. A message that arrives while another is
/// being read waits for its turn; one that is already shown or waiting is not shown twice.
class MessageDialog : public QDialog
{
    Q_OBJECT

public:
    /// What can be done about a failure: the text of a button beside OK, and what it does when the message is gone.
    struct Offer
    {
        QString text; ///< empty for no offer
        std::function<void()> accept;
    };

    explicit MessageDialog(QWidget *parent = nullptr);

    /// The title used when none is given, "Warning!".
    [[nodiscard]] static QString defaultTitle();

    /// The message being shown, or shown last.
    [[nodiscard]] QString text() const;
    /// What stands below it: which file it is about, or why it happened; may be empty.
    [[nodiscard]] QString detail() const;

public slots:
    void showMessage(const QString &text, const QString &title = defaultTitle(), const QString &detail = {},
                     const Offer &offer = {});

    void done(int result) override;

private:
    struct Message
    {
        QString text;
        QString title;
        QString detail;
        Offer offer;

        [[nodiscard]] bool saysTheSameAs(const Message &other) const;
    };

    void display(const Message &message);

    QLabel *m_icon;
    QLabel *m_text;
    QLabel *m_detail;
    QPushButton *m_accept; ///< the offer
    Message m_shown;
    QQueue<Message> m_waiting;
};
