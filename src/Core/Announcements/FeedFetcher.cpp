#include "Core/Announcements/FeedFetcher.h"

#include "Core/Log.h"

#include <QCoroFuture>
#include <QCoroNetworkReply>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QPointer>
#include <QPromise>
#include <QScopedPointer>
#include <QThreadPool>
#include <QTimer>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

using Connection = FeedFetcher::Connection;

constexpr qint64 readBufferBytes = 64 << 10; // of Qt, before the body is read here

bool isFetchable(const QUrl& url) {
    const QString host = url.host();
    return url.scheme() == "https"_L1 && !host.isEmpty() && !host.endsWith(".invalid"_L1);
}

/// Finds the connection on another thread: the proxy's configuration may have to be fetched, and the first
/// use of TLS loads its libraries.
QFuture<Connection> systemConnection(const QUrl& url) {
    const auto promise = std::make_shared<QPromise<Connection>>();
    promise->start();
    QThreadPool::globalInstance()->start([promise, url] {
        const QList<QNetworkProxy> proxies =
            QNetworkProxyFactory::systemProxyForQuery(QNetworkProxyQuery(url));
        promise->addResult(Connection{.proxy = proxies.value(0, QNetworkProxy::NoProxy),
                                      .tls = QSslConfiguration::defaultConfiguration()});
        promise->finish();
    });
    return promise->future();
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

FeedFetcher::FeedFetcher() {
    // The network's thread must be gone before the application is.
    connect(qApp, &QCoreApplication::aboutToQuit, this, &FeedFetcher::abandoned);
}

FeedFetcher::FeedFetcher(Connection connection, Limits limits)
    : m_connection(std::move(connection))
    , m_limits(limits) {}

FeedFetcher::~FeedFetcher() {
    Q_EMIT abandoned();
}

QCoro::Task<std::optional<QByteArray>> FeedFetcher::fetch(QUrl url) {
    if (!isFetchable(url))
        co_return std::nullopt;
    const QPointer<FeedFetcher> self(this);
    const QDeadlineTimer deadline(m_limits.timeout);
    const Limits limits = m_limits;
    auto connecting = m_connection ? QtFuture::makeReadyFuture(*m_connection) : systemConnection(url);
    const Connection connection = co_await connecting;
    if (!self || deadline.hasExpired())
        co_return std::nullopt;

    // One for each transfer, so that its thread does not stay for the hours until the next.
    const QScopedPointer<QNetworkAccessManager, QScopedPointerDeleteLater> network(new QNetworkAccessManager);
    network->setProxy(connection.proxy);
    QNetworkReply* reply = network->get(makeRequest(url, connection.tls, limits.redirects));
    reply->setReadBufferSize(readBufferBytes);
    const auto body = std::make_shared<QByteArray>();
    connect(reply, &QNetworkReply::redirected, reply, [body] { body->clear(); });
    connect(reply, &QNetworkReply::readyRead, reply,
            [reply, body, limits] { collect(*reply, *body, limits.bodyBytes); });
    connect(this, &FeedFetcher::abandoned, reply, &QNetworkReply::abort);
    QTimer::singleShot(std::chrono::milliseconds(deadline.remainingTime()), reply, &QNetworkReply::abort);
    co_await reply;
    if (!isSuccess(*reply)) {
        qCWarning(Log::feed) << "not fetched:" << reply->error()
                             << reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        co_return std::nullopt;
    }
    collect(*reply, *body, limits.bodyBytes);
    if (body->size() > limits.bodyBytes)
        co_return std::nullopt;
    co_return *body;
}
