#include "Tools/FeedFetcher.h"

#include "LoopbackServer.h"

#include <QTcpServer>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace Tools;

namespace {

constexpr qsizetype feedLimit = 1 << 20;

const QByteArray feed = R"({"messages": []})";

/// The same feed, padded with spaces.
QByteArray paddedFeed(qsizetype size) {
    return feed + QByteArray(size - feed.size(), ' ');
}

const SelfSigned& trusted() {
    static const SelfSigned identity = SelfSigned::make();
    return identity;
}

struct FeedFetcherTest : testing::Test {
    LoopbackServer server{trusted()};
    LoopbackServer otherServer{trusted()};
    QTcpServer plainServer;
    QUrl url = server.url(u"/api/messages.json"_s);
    qint64 pouredBytes = 0;

    FeedFetcherTest() {
        plainServer.listen(QHostAddress::LocalHost);
        otherServer.answer = [](QSslSocket& client, const QByteArray&) {
            client.write(LoopbackServer::response("200 OK", feed));
        };
        server.answer = otherServer.answer;
    }

    static std::optional<QByteArray> fetch(const QUrl& url, std::chrono::milliseconds timeout = 30s) {
        FeedConnection connection = {.proxy = QNetworkProxy::NoProxy,
                                     .tls = QSslConfiguration::defaultConfiguration()};
        connection.tls.setCaCertificates({trusted().certificate});
        return fetchFeed(url, connection, {.timeout = timeout});
    }
    void reply(const QByteArray& response) {
        server.answer = [response](QSslSocket& client, const QByteArray&) { client.write(response); };
    }
    void serve(const QByteArray& body) { reply(LoopbackServer::response("200 OK", body)); }
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
};

} // namespace

TEST_F(FeedFetcherTest, OnlyAWholeGoodAnswerIsTaken) {
    struct Case {
        const char* name;
        std::function<void()> prepare;
        std::optional<QByteArray> taken;
        std::chrono::milliseconds timeout = 30s;
    };
    const auto response = &LoopbackServer::response;
    const QUrl plain(u"http://127.0.0.1:%1/"_s.arg(plainServer.serverPort()));
    const QByteArray largest = paddedFeed(feedLimit);
    const Case cases[] = {
        {"good", [&] { serve(feed); }, feed},
        {"another success", [&] { reply(response("203 Fine", feed, {})); }, feed},
        {"ended by closing", [&] { replyAndClose("HTTP/1.1 200 OK\r\n\r\n" + feed); }, feed},
        {"cut short", [&] { replyAndClose(response("200 OK", feed, {}).chopped(1)); }, {}},
        {"304", [&] { reply(response("304 Not Modified", {}, {})); }, {}},
        {"404", [&] { reply(response("404 Gone", feed, {})); }, {}},
        {"500", [&] { reply(response("500 Oops", feed, {})); }, {}},
        {"no HTTP", [&] { replyAndClose(feed); }, {}},
        {"redirect to plain HTTP", [&] { redirect(plain); }, {}},
        {"redirect to a file", [&] { redirect(QUrl(u"file:///etc/hostname"_s)); }, {}},
        {"redirect in circles", [&] { redirect(server.url(u"/again"_s)); }, {}},
        {"redirect elsewhere", [&] { redirect(otherServer.url(u"/moved"_s)); }, feed},
        {"a stranger's certificate", [&] { server.present(SelfSigned::make()), serve(feed); }, {}},
        {"1 MiB", [&] { serve(largest); }, largest},
        {"1 MiB and a byte", [&] { serve(paddedFeed(feedLimit + 1)); }, {}},
        {"2 MiB", [&] { serve(paddedFeed(2 * feedLimit)); }, {}},
        {"without end", [&] { pour(); }, {}},
        {"dripping", [&] { drip(); }, {}, 600ms},
        {"silent", [&] { reply({}); }, {}, 600ms},
        {"nobody there", [&] { server.close(); }, {}},
    };
    for (const auto& [name, prepare, expected, timeout] : cases) {
        SCOPED_TRACE(name);
        server.present(trusted());
        prepare();
        EXPECT_EQ(fetch(url, timeout), expected);
    }
    EXPECT_FALSE(plainServer.hasPendingConnections());
    EXPECT_LT(pouredBytes, 16 * feedLimit); // as much as fits into buffers
}

TEST_F(FeedFetcherTest, EveryFetchAsksTheOriginAnewAndTellsNothing) {
    reply(LoopbackServer::response(
        "200 OK", feed, "ETag: \"1\"\r\nCache-Control: max-age=9999\r\nSet-Cookie: a=b; Path=/\r\n"));
    for (int i = 0; i < 2; ++i)
        EXPECT_TRUE(fetch(url));
    ASSERT_EQ(server.requests.size(), 2);
    for (const QByteArray& request : server.requests) {
        EXPECT_TRUE(request.startsWith("GET /api/messages.json HTTP/1.1\r\n"));
        EXPECT_TRUE(request.contains("cache-control: no-cache"));
        for (const auto* header : {"cookie:", "if-none-match:", "if-modified-since:", "authorization:"})
            EXPECT_FALSE(request.contains(header)) << header;
    }
}

TEST_F(FeedFetcherTest, NoRequestGoesOverPlainHttp) {
    QUrl plainHttp = url;
    plainHttp.setScheme(u"http"_s);
    plainHttp.setPort(plainServer.serverPort());
    for (const QUrl& refused : {plainHttp, QUrl(u"file:///etc/hostname"_s), QUrl(u"https:///x"_s), QUrl()})
        EXPECT_FALSE(fetch(refused)) << qPrintable(refused.toString());
    EXPECT_FALSE(plainServer.waitForNewConnection(50));
}
