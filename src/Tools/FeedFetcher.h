#pragma once

#include <QByteArray>
#include <QNetworkProxy>
#include <QSslConfiguration>
#include <QUrl>

#include <chrono>
#include <optional>

namespace Tools {

struct FeedConnection {
    QNetworkProxy proxy;
    QSslConfiguration tls;

    /// The proxy that the system names for `url`, and the system's certificates. May take seconds, where a
    /// proxy's configuration has to be fetched.
    static FeedConnection ofSystem(const QUrl& url);
};

struct FeedLimits {
    std::chrono::milliseconds timeout = std::chrono::seconds(15); ///< redirects included
    qint64 bodyBytes = 1 << 20;
    int redirects = 5;
};

/// Fetches a document over HTTPS, without caches and cookies. The server needs a certificate that the
/// connection trusts. Redirects are followed to HTTPS only. Returns an empty optional without a whole body
/// and a status of 200 to 299. Runs an event loop; needs a QCoreApplication.
std::optional<QByteArray> fetchFeed(const QUrl& url, const FeedConnection& connection,
                                    const FeedLimits& limits = {});

} // namespace Tools
