#pragma once

#include <QNetworkReply>
#include <QObject>
#include <QPointer>
#include <QUrl>

class QNetworkAccessManager;

namespace Update {

/// Fetches the update feed. At most one request is in flight; a new check aborts the one before it,
/// whose result is then never reported.
class UpdateChecker final : public QObject
{
    Q_OBJECT

public:
    /// A feed is a few hundred bytes; one that exceeds this many is refused.
    static constexpr qint64 MaxFeedSize = 256 * 1024;

    /// version is the running version, which the server is told.
    explicit UpdateChecker(const QString &version, QObject *parent = nullptr);

    /// The address from which checkers made from now on fetch the feed, in place of the real one: that
    /// of a server on this machine in a test, or an empty one with which every check fails at once.
    static void setFeedAddress(const QUrl &address);

    /// Milliseconds without any data after which a check fails.
    void setTransferTimeout(int timeout) { m_transferTimeout = timeout; }

public slots:
    void check();

signals:
    void fetched(const QByteArray &feed);
    void failed(const QString &error);

private:
    void abandonReply();
    void limitSize();
    void finish();

    QNetworkAccessManager *m_network = nullptr;
    QUrl m_feedAddress;
    QString m_version;
    QPointer<QNetworkReply> m_reply;
    int m_transferTimeout = 5000;
};

} // namespace Update
