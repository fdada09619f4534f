#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

/// A socket in the file system that only this user can write to. It takes short messages, and answers none.
class MessageSocket : public QObject {
    Q_OBJECT

public:
    static constexpr qsizetype maxMessageBytes = 4096; ///< the rest of a longer one is lost

    explicit MessageSocket(QString path, QObject* parent = nullptr);
    /// Removes the socket if it listened.
    ~MessageSocket() override;

    const QString& path() const { return m_path; }
    /// Takes the path over from whoever has it. Returns false, with errno, where that is impossible.
    bool listen();
    /// Returns false when nobody listens at `path`. A listener that takes no more messages counts as one.
    static bool send(const QString& path, const QByteArray& message);

Q_SIGNALS:
    void received(const QByteArray& message);

private:
    void receive();

    QString m_path;
    int m_descriptor = -1;
};
