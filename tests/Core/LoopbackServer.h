#pragma once

#include <QSslCertificate>
#include <QSslKey>
#include <QSslServer>
#include <QSslSocket>

#include <QList>
#include <QString>
#include <functional>

/// A certificate for 127.0.0.1 that nobody has signed but itself.
struct SelfSigned {
    QSslKey key;
    QSslCertificate certificate;

    /// Made by the openssl program.
    static SelfSigned make();
};

/// An HTTPS server that remembers every request and answers as the test says.
class LoopbackServer : public QSslServer {
public:
    explicit LoopbackServer(const SelfSigned& identity);

    /// Writes the answer to the request whose path is given.
    std::function<void(QSslSocket& client, const QByteArray& path)> answer;
    QList<QByteArray> requests; ///< head lines, in lower case but for the first

    void present(const SelfSigned& identity);
    QUrl url(const QString& path) const;

    static QByteArray response(const QByteArray& status, const QByteArray& body,
                               const QByteArray& headers = {});

private:
    void take(QSslSocket& client);
};
