#pragma once

#include <QList>
#include <QSslCertificate>
#include <QSslKey>
#include <QSslServer>
#include <QSslSocket>
#include <QString>

#include <functional>

/// A self-signed certificate for 127.0.0.1.
struct SelfSigned {
    QSslKey key;
    QSslCertificate certificate;

    /// Makes one with the program openssl.
    static SelfSigned make();
};

/// An HTTPS server that records every request and answers as the test says.
class LoopbackServer : public QSslServer {
public:
    explicit LoopbackServer(const SelfSigned& identity);

    /// Writes the answer to the request whose path is given.
    std::function<void(QSslSocket& client, const QByteArray& path)> answer;
    QList<QByteArray> requests; ///< their heads, in lower case except the first line

    void present(const SelfSigned& identity);
    QUrl url(const QString& path) const;

    static QByteArray response(const QByteArray& status, const QByteArray& body,
                               const QByteArray& headers = {});

private:
    void take(QSslSocket& client);
};
