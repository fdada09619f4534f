#include "LoopbackServer.h"

#include "support/Files.h"

#include <QProcess>
#include <QSslConfiguration>
#include <QTemporaryDir>
#include <QUrl>

using namespace Qt::StringLiterals;

SelfSigned SelfSigned::make() {
    const QTemporaryDir folder;
    const QString key = folder.filePath(u"key.pem"_s);
    const QString certificate = folder.filePath(u"certificate.pem"_s);
    QProcess openssl;
    openssl.start(u"openssl"_s,
                  {u"req"_s, u"-x509"_s, u"-newkey"_s, u"ec"_s, u"-pkeyopt"_s,
                   u"ec_paramgen_curve:prime256v1"_s, u"-nodes"_s, u"-days"_s, u"2"_s, u"-subj"_s,
                   u"/CN=127.0.0.1"_s, u"-addext"_s, u"subjectAltName=IP:127.0.0.1"_s, u"-keyout"_s, key,
                   u"-out"_s, certificate});
    if (!openssl.waitForFinished() || openssl.exitCode() != 0)
        qFatal("openssl made no certificate: %s", openssl.readAllStandardError().constData());
    return {.key = QSslKey(contentOf(key), QSsl::Ec), .certificate = QSslCertificate(contentOf(certificate))};
}

LoopbackServer::LoopbackServer(const SelfSigned& identity) {
    present(identity);
    connect(this, &QTcpServer::pendingConnectionAvailable, this, [this] {
        auto* client = static_cast<QSslSocket*>(nextPendingConnection());
        connect(client, &QIODevice::readyRead, this, [this, client] { take(*client); });
        connect(client, &QAbstractSocket::disconnected, client, &QObject::deleteLater);
        take(*client);
    });
    if (!listen(QHostAddress::LocalHost))
        qFatal("cannot listen on loopback");
}

void LoopbackServer::present(const SelfSigned& identity) {
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    tls.setLocalCertificate(identity.certificate);
    tls.setPrivateKey(identity.key);
    setSslConfiguration(tls);
}

QUrl LoopbackServer::url(const QString& path) const {
    return QUrl(u"https://127.0.0.1:%1%2"_s.arg(serverPort()).arg(path));
}

QByteArray LoopbackServer::response(const QByteArray& status, const QByteArray& body,
                                    const QByteArray& headers) {
    return "HTTP/1.1 " + status + "\r\nConnection: close\r\n" + headers +
           "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
}

void LoopbackServer::take(QSslSocket& client) {
    const QByteArray head = client.peek(16 << 10);
    if (!head.contains("\r\n\r\n"))
        return;
    client.readAll();
    const qsizetype firstLine = head.indexOf("\r\n");
    requests.append(head.left(firstLine) + head.mid(firstLine).toLower());
    answer(client, head.split(' ').value(1));
}
