#pragma once

#include "Core/Announcements/FeedSource.h"

#include <QNetworkProxy>
#include <QObject>
#include <QSslConfiguration>

#include <chrono>

/// Fetches the feed over HTTPS, without caches and cookies. The server needs a certificate that the system
/// trusts. Redirects are followed to HTTPS only.
class FeedFetcher : public QObject, public FeedSource {
    Q_OBJECT

public:
    struct Limits {
        std::chrono::milliseconds timeout = std::chrono::seconds(15); ///< redirects included
        qint64 bodyBytes = 1 << 20;
        int redirects = 5;
    };
    struct Connection {
        QNetworkProxy proxy;
        QSslConfiguration tls;
    };

    /// Uses the system's proxy and certificates.
    FeedFetcher();
    /// Uses the server and the limits of a test.
    FeedFetcher(Connection connection, Limits limits);
    ~FeedFetcher() override;

    /// Returns an empty optional without a whole body and a status of 200 to 299. A host below ".invalid",
    /// which never resolves, is not asked: it stands for a feed that does not exist yet.
    QCoro::Task<std::optional<QByteArray>> fetch(QUrl url) override;

Q_SIGNALS:
    void abandoned();

private:
    std::optional<Connection> m_connection;
    Limits m_limits;
};
