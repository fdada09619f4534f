#pragma once

#include "Core/Announcements/FeedSource.h"

#include <QNetworkProxy>
#include <QObject>
#include <QSslConfiguration>

#include <chrono>

/// Fetches the feed over HTTPS, without caches and cookies. A server is believed only with a certificate that
/// the system trusts; redirects are followed to HTTPS alone.
class FeedFetcher : public QObject, public FeedSource {
    Q_OBJECT

public:
    struct Limits {
        std::chrono::milliseconds wholeTransfer = std::chrono::seconds(15); ///< redirects included
        qint64 bodyBytes = 1 << 20;
        int redirects = 5;
    };
    struct Connection {
        QNetworkProxy proxy;
        QSslConfiguration tls;
    };

    /// With the system's proxy and certificates.
    FeedFetcher();
    /// For tests, which have a server and limits of their own.
    FeedFetcher(Connection connection, Limits limits);
    ~FeedFetcher() override;

    /// Empty on anything but a whole body with a status of 200 to 299. Nothing is asked of a host below
    /// ".invalid", a domain that never resolves: it stands for a feed that no maker has set up yet.
    QCoro::Task<std::optional<QByteArray>> fetch(QUrl url) override;

Q_SIGNALS:
    void abandoned();

private:
    std::optional<Connection> m_connection;
    Limits m_limits;
};
