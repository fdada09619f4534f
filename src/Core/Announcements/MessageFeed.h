#pragma once

#include "Core/RawValue.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUrl>

#include <array>
#include <optional>

/// One announcement of the feed.
struct Message {
    /// The installations that it is for. Several builds read one feed.
    enum class Target { all, linuxBuild, macBuild, windowsBuild };
    enum class Severity { info, warn, update, upgrade };

    /// The target of this build, beside `all`.
    static constexpr Target ownTarget = Target::linuxBuild;

    QString id;
    Target target = Target::all;
    Severity severity = Severity::info;
    QString title;
    QString body;
    std::optional<QString> actionLabel = std::nullopt;
    std::optional<QString> actionURL = std::nullopt;
    std::optional<QString> minVersion = std::nullopt;
    std::optional<QString> maxVersion = std::nullopt;
    std::optional<bool> showOncePerVersion = std::nullopt; ///< true: a dismissal lasts for one version

    bool operator==(const Message&) const = default;

    /// Returns `actionURL` when it only opens a page or a mail: "http" or "https" with a host and no user
    /// name, or "mailto" with at most a subject and a body. Mail programs may attach local files that other
    /// headers name.
    std::optional<QUrl> actionLink() const;
};

template <>
inline constexpr std::array rawValueTable<Message::Target> = {
    RawValueRow{Message::Target::all, u"all"},
    RawValueRow{Message::Target::linuxBuild, u"linux"},
    RawValueRow{Message::Target::macBuild, u"macos"},
    RawValueRow{Message::Target::windowsBuild, u"windows"},
};

template <>
inline constexpr std::array rawValueTable<Message::Severity> = {
    RawValueRow{Message::Severity::info, u"info"},
    RawValueRow{Message::Severity::warn, u"warn"},
    RawValueRow{Message::Severity::update, u"update"},
    RawValueRow{Message::Severity::upgrade, u"upgrade"},
};

/// Returns the rank of a severity. The message of the highest rank is shown.
int severityRank(Message::Severity severity);

/// The document at the feed's address.
struct Feed {
    QList<Message> messages;

    bool operator==(const Feed&) const = default;

    /// Returns an empty optional unless the document is UTF-8, JSON, and every message complete with values
    /// of the right types. Unknown keys are ignored.
    static std::optional<Feed> decode(const QByteArray& json);
};
