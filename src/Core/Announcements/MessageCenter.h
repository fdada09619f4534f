#pragma once

#include "Core/Announcements/MessageFeed.h"
#include "Core/Observable.h"

#include <QCoroTask>
#include <QTimer>
#include <QUrl>

#include <memory>
#include <optional>

class FeedSource;
class SettingsFile;

/// Fetches the maker's announcements and publishes the one to show. After any failure the known messages
/// stay, and the next poll tries again.
class MessageCenter : public Observable {
    Q_OBJECT

public:
    using Message = ::Message;
    using Feed = ::Feed;

    /// Returns the center of the running program, made at the first call.
    static MessageCenter& shared();

    /// `settings` stores the dismissals and outlives the center.
    MessageCenter(std::unique_ptr<FeedSource> source, SettingsFile& settings, QUrl url = defaultFeedURL(),
                  QObject* parent = nullptr);
    ~MessageCenter() override;

    /// Returns "https://HOST/api/messages.json", on the host of the build option.
    static QUrl defaultFeedURL();

    /// Returns the last feed in its own order.
    const QList<Message>& allMessages() const { return m_allMessages; }
    /// Returns the message to show, or an empty optional.
    const std::optional<Message>& currentMessage() const { return m_currentMessage; }

    static constexpr double pollInterval = 43200; ///< seconds

    /// Refreshes on the next pass of the main loop and then every `pollInterval`.
    void start();
    /// Fetches the feed once. Of overlapping refreshes the last to complete wins.
    QCoro::Task<> refresh();
    /// Chooses the message to show among the known messages.
    void recompute();
    /// Hides the message for good, or for this version.
    void dismiss(const Message& message);

    /// Returns the settings key of the message's dismissal.
    static QString dismissKey(const Message& message);
    /// Returns the program's version, "0.0.0" where it has none.
    static QString appVersion();
    /// Returns -1, 0 or 1 after comparing the numbers between the dots. A part that is no number counts as
    /// -1, a missing one as 0.
    static int compareVersions(const QString& a, const QString& b);

private:
    bool isEligible(const Message& message, const QString& version) const;

    QUrl m_feedURL;
    std::optional<Message> m_currentMessage;
    QList<Message> m_allMessages;
    QTimer m_timer{this};
    SettingsFile& m_settings;
    std::unique_ptr<FeedSource> m_source;
};
