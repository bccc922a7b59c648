#include "update/updatechecker.h"

#include <QNetworkAccessManager>
#include <QNetworkRequest>

namespace {

const QString FeedAddress = QStringLiteral("https://updates.quenmora.example/versions.json");
const QString WebSite = QStringLiteral("https://www.quenmora.example/");

QUrl &feedAddress()
{
    static QUrl address(FeedAddress);
    return address;
}

} // namespace

namespace Update {

UpdateChecker::UpdateChecker(const QString &version, QObject *parent)
    : QObject(parent)
    , m_feedAddress(feedAddress())
    , m_version(version)
{ }

void UpdateChecker::setFeedAddress(const QUrl &address)
{
    feedAddress() = address;
}

void UpdateChecker::check()
{
    abandonReply();
    // Made when first needed: it loads the TLS libraries, which a start without a check does without.
    if (!m_network)
        m_network = new QNetworkAccessManager(this);

    QNetworkRequest request(m_feedAddress);
    request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Quenmora/%1 (+%2)").arg(m_version, WebSite));
    request.setTransferTimeout(m_transferTimeout);
    m_reply = m_network->get(request);
    connect(m_reply, &QNetworkReply::readyRead, this, &UpdateChecker::limitSize);
    connect(m_reply, &QNetworkReply::finished, this, &UpdateChecker::finish);
}

void UpdateChecker::abandonReply()
{
    if (!m_reply)
        return;
    disconnect(m_reply, nullptr, this, nullptr);
    m_reply->abort();
    m_reply->deleteLater();
    m_reply = nullptr;
}

void UpdateChecker::limitSize()
{
    // Nothing is read before the reply is complete, so all that has arrived is still available.
    if (m_reply->bytesAvailable() <= MaxFeedSize)
        return;
    abandonReply();
    emit failed(tr("The update feed is too large"));
}

void UpdateChecker::finish()
{
    QNetworkReply *reply = m_reply;
    m_reply = nullptr;
    reply->deleteLater();
    if (reply->error() == QNetworkReply::NoError)
        emit fetched(reply->readAll());
    else
        emit failed(reply->errorString());
}

} // namespace Update
