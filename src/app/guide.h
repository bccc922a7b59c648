#pragma once

#include "app/documentviews.h"

#include <QObject>
#include <QString>

#include <functional>

class QUrl;

/// Opens the guide in the person's browser, at the page about what they work on.
class Guide : public QObject
{
    Q_OBJECT

public:
    /// Shows a page; false where nothing can.
    using Opener = std::function<bool(const QUrl &)>;

    explicit Guide(const DocumentViews &views, QObject *parent = nullptr);

    /// Replaces the desktop's browser.
    void setOpener(Opener opener);

    /// The page about the dock that has the keyboard, or about the document in front; empty where neither says
    /// anything.
    [[nodiscard]] QString pageInFront() const;

public slots:
    void open();

signals:
    /// The guide cannot be shown, and what can be done about that.
    void failed(const QString &message, const QString &detail);

private:
    DocumentViews m_views;
    Opener m_open;
};
