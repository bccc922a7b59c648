#pragma once

#include <QDialog>

class QDialogButtonBox;
class QFormLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

/// The base of the dialogs that create or convert an asset: an optional header, a form, a line that
/// says why the dialog cannot be accepted, and OK and Cancel.
///
/// A subclass adds its rows to form() (and wider things to body()) and says in problem() what is
/// wrong with its values. OK closes the dialog only when nothing is wrong; otherwise the problem is
/// shown, and goes away as soon as the values are put right if they announce it to revalidate().
class DialogBase : public QDialog
{
    Q_OBJECT

public:
    explicit DialogBase(const QString &title, QWidget *parent = nullptr);

    /// A line in bold above the form; none while it is empty, as at first.
    void setHeader(const QString &header);

    /// The text on the error line, empty when nothing is wrong.
    [[nodiscard]] QString error() const;

    [[nodiscard]] QPushButton *okButton() const;

public slots:
    void accept() override;

    /// Shows an error and tells assistive technology; an empty text clears the line.
    void setError(const QString &error);

protected:
    /// What keeps the values from being accepted, as a sentence for the user; empty when they are fine.
    [[nodiscard]] virtual QString problem() const { return {}; }

    /// The values have been accepted and the dialog is closed: tell them.
    virtual void submit() { }

    [[nodiscard]] QFormLayout *form() const { return m_form; }

    /// The column that holds the form; more widgets go below it.
    [[nodiscard]] QVBoxLayout *body() const { return m_body; }

    [[nodiscard]] QDialogButtonBox *buttons() const { return m_buttons; }

    /// Starts every showing with an empty error line and the keyboard in the first field.
    void showEvent(QShowEvent *event) override;

protected slots:
    /// Brings an error that is being shown up to date; shows no new one. Connect it to the fields.
    void revalidate();

private:
    QLabel *m_header;
    QVBoxLayout *m_body;
    QFormLayout *m_form;
    QLabel *m_errorIcon;
    QLabel *m_error;
    QDialogButtonBox *m_buttons;
};
