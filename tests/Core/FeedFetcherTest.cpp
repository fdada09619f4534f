#include "Core/Announcements/FeedFetcher.h"

#include "Core/Announcements/MessageCenter.h"
#include "LoopbackServer.h"
#include "support/ScriptedFeed.h"
#include "support/TemporarySettings.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTcpServer>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr qsizetype feedLimit = 1 << 20;

QByteArray feedNamed(const QString& id) {
    return feedOf({{.id = id, .title = u"title"_s, .body = u"body"_s}});
}

/// The same feed, padded with spaces.
QByteArray paddedFeed(qsizetype size) {
    const QByteArray feed = feedNamed(u"new"_s);
    return feed + QByteArray(size - feed.size(), ' ');
}

const SelfSigned& trusted() {
    static const SelfSigned identity = SelfSigned::make();
    return identity;
}

/// A source whose limits a test can change between two fetches.
class Relay : public FeedSource {
public:
    std::unique_ptr<FeedFetcher> fetcher;

    Relay() { allow({}); }
    void allow(FeedFetcher::Limits limits) {
        FeedFetcher::Connection connection = {.proxy = QNetworkProxy::NoProxy,
                                              .tls = QSslConfiguration::defaultConfiguration()};
        connection.tls.setCaCertificates({trusted().certificate});
        fetcher = std::make_unique<FeedFetcher>(connection, limits);
    }
    QCoro::Task<std::optional<QByteArray>> fetch(QUrl url) override { return fetcher->fetch(url); }
};

struct FeedFetcherTest : testing::Test {
    TemporarySettings settings;
    LoopbackServer server{trusted()};
    LoopbackServer otherServer{trusted()};
    QTcpServer plainServer;
    Relay* relay = new Relay;
    std::unique_ptr<MessageCenter> center = std::make_unique<MessageCenter>(
        std::unique_ptr<FeedSource>(relay), settings.preferences.file(), server.url(u"/api/messages.json"_s));
    qint64 pouredBytes = 0;

    FeedFetcherTest() {
        plainServer.listen(QHostAddress::LocalHost);
        otherServer.answer = [](QSslSocket& client, const QByteArray&) {
            client.write(LoopbackServer::response("200 OK", feedNamed(u"new"_s)));
        };
        server.answer = otherServer.answer;
    }

    void reply(const QByteArray& response) {
        server.answer = [response](QSslSocket& client, const QByteArray&) { client.write(response); };
    }
    void serve(const QByteArray& feed) { reply(LoopbackServer::response("200 OK", feed)); }
    void replyAndClose(const QByteArray& response) {
        server.answer = [response](QSslSocket& client, const QByteArray&) {
            client.write(response);
            client.disconnectFromHost();
        };
    }
    void redirect(const QUrl& target) {
        reply(LoopbackServer::response("302 Found", QByteArray(10'000, 'x'),
                                       "Location: " + target.toEncoded() + "\r\n"));
    }
    /// Sends bytes without an end, as fast as they are read.
    void pour() {
        server.answer = [this](QSslSocket& client, const QByteArray&) {
            const auto more = [this, &client](qint64 written) {
                pouredBytes += written;
                if (client.bytesToWrite() == 0 && client.encryptedBytesToWrite() == 0)
                    client.write(QByteArray(64 << 10, ' '));
            };
            QObject::connect(&client, &QSslSocket::encryptedBytesWritten, &client, more,
                             Qt::QueuedConnection);
            client.write("HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n");
        };
    }
    /// Sends one byte after the other, so that the connection never looks idle.
    void drip() {
        server.answer = [](QSslSocket& client, const QByteArray&) {
            auto* timer = new QTimer(&client);
            QObject::connect(timer, &QTimer::timeout, &client, [&client] { client.write(" "); });
            client.write("HTTP/1.1 200 OK\r\nContent-Length: 1500\r\n\r\n");
            timer->start(20);
        };
    }
    QString shown() const { return center->currentMessage().value_or(Message()).id; }
};

} // namespace

TEST_F(FeedFetcherTest, OnlyAWholeGoodAnswerChangesTheMessage) {
    struct Case {
        const char* name;
        std::function<void()> prepare;
        QString shown;
        std::chrono::milliseconds timeout = 30s;
    };
    const QString now = u"new"_s;
    const QString old = u"old"_s;
    const auto response = &LoopbackServer::response;
    const QByteArray good = feedNamed(u"new"_s);
    const QByteArray oneBad = QByteArray(good).replace("[{", "[{\"id\": 1}, {");
    const QByteArray badText = QByteArray(good).replace("title\"", "\xff\"");
    const QUrl plain(u"http://127.0.0.1:%1/"_s.arg(plainServer.serverPort()));
    const Case cases[] = {
        {"good", [&] { serve(good); }, now},
        {"another success", [&] { reply(response("203 Fine", good, {})); }, now},
        {"ended by closing", [&] { replyAndClose("HTTP/1.1 200 OK\r\n\r\n" + good); }, now},
        {"cut short", [&] { replyAndClose(response("200 OK", good, {}).chopped(1)); }, old},
        {"304", [&] { reply(response("304 Not Modified", {}, {})); }, old},
        {"404", [&] { reply(response("404 Gone", good, {})); }, old},
        {"500", [&] { reply(response("500 Oops", good, {})); }, old},
        {"no HTTP", [&] { replyAndClose(good); }, old},
        {"one bad message", [&] { serve(oneBad); }, old},
        {"bad UTF-8", [&] { serve(badText); }, old},
        {"redirect to plain HTTP", [&] { redirect(plain); }, old},
        {"redirect to a file", [&] { redirect(QUrl(u"file:///etc/hostname"_s)); }, old},
        {"redirect in circles", [&] { redirect(server.url(u"/again"_s)); }, old},
        {"redirect elsewhere", [&] { redirect(otherServer.url(u"/moved"_s)); }, now},
        {"a stranger's certificate", [&] { server.present(SelfSigned::make()), serve(good); }, old},
        {"1 MiB", [&] { serve(paddedFeed(feedLimit)); }, now},
        {"1 MiB and a byte", [&] { serve(paddedFeed(feedLimit + 1)); }, old},
        {"2 MiB", [&] { serve(paddedFeed(2 * feedLimit)); }, old},
        {"without end", [&] { pour(); }, old},
        {"dripping", [&] { drip(); }, old, 600ms},
        {"silent", [&] { reply({}); }, old, 600ms},
        {"nobody there", [&] { server.close(); }, old},
    };
    int firings = 0; // passes of the main loop for the user interface
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&firings] { ++firings; });
    timer.start(1);
    for (const auto& [name, prepare, expected, timeout] : cases) {
        SCOPED_TRACE(name);
        server.present(trusted());
        relay->allow({});
        serve(feedNamed(old));
        QCoro::waitFor(center->refresh());
        ASSERT_EQ(shown(), old);
        relay->allow({.timeout = timeout});
        prepare();
        firings = 0;
        QElapsedTimer elapsed;
        elapsed.start();
        QCoro::waitFor(center->refresh());
        EXPECT_EQ(shown(), expected);
        EXPECT_LT(elapsed.elapsed(), 20'000);
        EXPECT_GE(firings * 100, elapsed.elapsed());
    }
    EXPECT_FALSE(plainServer.hasPendingConnections());
    EXPECT_LT(pouredBytes, 16 * feedLimit); // as much as fits into buffers
}

TEST_F(FeedFetcherTest, EveryFetchAsksTheOriginAnewAndTellsNothing) {
    reply(LoopbackServer::response(
        "200 OK", feedNamed(u"a"_s),
        "ETag: \"1\"\r\nCache-Control: max-age=9999\r\nSet-Cookie: a=b; Path=/\r\n"));
    for (int i = 0; i < 2; ++i)
        QCoro::waitFor(center->refresh());
    ASSERT_EQ(server.requests.size(), 2);
    for (const QByteArray& request : server.requests) {
        EXPECT_TRUE(request.startsWith("GET /api/messages.json HTTP/1.1\r\n"));
        EXPECT_TRUE(request.contains("cache-control: no-cache"));
        for (const auto* header : {"cookie:", "if-none-match:", "if-modified-since:", "authorization:"})
            EXPECT_FALSE(request.contains(header)) << header;
    }
}

TEST_F(FeedFetcherTest, NoRequestGoesOverPlainHttpOrToAnInvalidHost) {
    QUrl plainHttp = server.url(u"/"_s);
    plainHttp.setScheme(u"http"_s);
    plainHttp.setPort(plainServer.serverPort());
    for (const QUrl& url : {plainHttp, QUrl(u"https://feed.invalid/"_s), QUrl(u"file:///etc/hostname"_s),
                            QUrl(u"https:///x"_s), QUrl()}) {
        auto fetching = relay->fetcher->fetch(url);
        EXPECT_TRUE(fetching.isReady()) << qPrintable(url.toString());
        EXPECT_FALSE(QCoro::waitFor(fetching));
    }
    EXPECT_FALSE(plainServer.waitForNewConnection(50));
    EXPECT_EQ(MessageCenter::defaultFeedURL().scheme(), u"https"_s);
    EXPECT_EQ(MessageCenter::defaultFeedURL().path(), u"/api/messages.json"_s);
    EXPECT_FALSE(MessageCenter::defaultFeedURL().host().isEmpty());
}

TEST_F(FeedFetcherTest, ADestroyedCenterAbortsItsTransfers) {
    bool isHungUp = false;
    server.answer = [&isHungUp](QSslSocket& client, const QByteArray&) {
        QObject::connect(&client, &QSslSocket::disconnected, [&isHungUp] { isHungUp = true; });
    };
    center->refresh();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !server.requests.isEmpty(); }, 10'000));
    center.reset();
    EXPECT_TRUE(QTest::qWaitFor([&isHungUp] { return isHungUp; }, 10'000));
}
