#pragma once

#include "app/documentviews.h"

#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>

class QAction;
class QUrl;

/// Opens the guide in the person's browser, at the page about what they work on.
///
/// A modal dialog keeps keys from the menus behind it, so the keys of the action that serve() is given are looked for
/// in such dialogs here, once nothing in them has taken the key for itself.
class Guide : public QObject
{
    Q_OBJECT

public:
    /// Shows a page; false where nothing can.
    using Opener = std::function<bool(const QUrl &)>;

    explicit Guide(const DocumentViews &views, QObject *parent = nullptr);

    /// Replaces the desktop's browser.
    void setOpener(Opener opener);

    /// Opens the guide when an action is triggered, and by its keys in modal dialogs as well.
    void serve(QAction *action);

    /// The page about the dialog or dock that has the keyboard, or about the document in front; empty where none of
    /// them says anything.
    [[nodiscard]] QString pageInFront() const;

    /// The page about a kind of dialog, or of dialogs that it is made of; empty for those that can be about anything.
    [[nodiscard]] static QString pageOfDialog(const QMetaObject &dialog);

public slots:
    void open();

signals:
    /// The guide cannot be shown, and what can be done about that.
    void failed(const QString &message, const QString &detail);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    DocumentViews m_views;
    Opener m_open;
    QPointer<const QAction> m_action;
};
