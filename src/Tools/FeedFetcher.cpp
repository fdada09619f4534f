#include "Tools/FeedFetcher.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 readBufferBytes = 64 << 10; // of Qt, before the body is read here

bool isFetchable(const QUrl& url) {
    return url.scheme() == "https"_L1 && !url.host().isEmpty();
}

QNetworkRequest makeRequest(const QUrl& url, const QSslConfiguration& tls, int redirects) {
    QNetworkRequest request(url);
    request.setSslConfiguration(tls);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setMaximumRedirectsAllowed(redirects);
    // Only with HTTP/1.1 does Qt stop reading from the network when its buffer is full.
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    // The limit counts the bytes on the network, so nothing may unpack to more.
    request.setRawHeader("Accept-Encoding", "identity");
    request.setRawHeader("Accept", "application/json");
    request.setHeader(QNetworkRequest::UserAgentHeader,
                      u"Tavrin/"_s + QCoreApplication::applicationVersion());
    return request;
}

/// Appends what has arrived, and aborts the transfer beyond `maxBytes`.
void collect(QNetworkReply& reply, QByteArray& body, qint64 maxBytes) {
    body.append(reply.read(maxBytes + 1 - body.size()));
    if (body.size() > maxBytes)
        reply.abort();
}

bool isSuccess(const QNetworkReply& reply) {
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    return reply.error() == QNetworkReply::NoError && status >= 200 && status < 300;
}

} // namespace

namespace Tools {

FeedConnection FeedConnection::ofSystem(const QUrl& url) {
    const QList<QNetworkProxy> proxies = QNetworkProxyFactory::systemProxyForQuery(QNetworkProxyQuery(url));
    return {.proxy = proxies.value(0, QNetworkProxy::NoProxy),
            .tls = QSslConfiguration::defaultConfiguration()};
}

std::optional<QByteArray> fetchFeed(const QUrl& url, const FeedConnection& connection,
                                    const FeedLimits& limits) {
    if (!isFetchable(url))
        return std::nullopt;
    QNetworkAccessManager network;
    network.setProxy(connection.proxy);
    QNetworkReply* reply = network.get(makeRequest(url, connection.tls, limits.redirects));
    reply->setReadBufferSize(readBufferBytes);
    QByteArray body;
    QEventLoop loop;
    QObject::connect(reply, &QNetworkReply::redirected, &loop, [&body] { body.clear(); });
    QObject::connect(reply, &QNetworkReply::readyRead, &loop,
                     [&] { collect(*reply, body, limits.bodyBytes); });
    QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    QTimer::singleShot(limits.timeout, reply, &QNetworkReply::abort);
    loop.exec();
    if (!isSuccess(*reply))
        return std::nullopt;
    collect(*reply, body, limits.bodyBytes);
    if (body.size() > limits.bodyBytes)
        return std::nullopt;
    return body;
}

} // namespace Tools
