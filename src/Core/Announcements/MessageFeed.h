#pragma once

#include "Core/RawValue.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUrl>

#include <array>
#include <optional>

/// One announcement of the maker's, as the feed holds it.
struct Message {
    /// Which installations it is for. All four may stand in a feed that several builds read.
    enum class Target { all, linuxBuild, macBuild, windowsBuild };
    enum class Severity { info, warn, update, upgrade };

    /// The one, beside `all`, that this build answers to.
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
    std::optional<bool> showOncePerVersion = std::nullopt; ///< true: a dismissal holds for one version

    bool operator==(const Message&) const = default;

    /// What `actionURL` leads to; empty unless it is an address that does no more than open a page or a
    /// letter: "http" or "https" with a host and no user name, or "mailto" with at most a subject and a body,
    /// because mail programs may attach files that other headers name. A feed can so never open a local file.
    std::optional<QUrl> actionLink() const;
};

template <>
inline constexpr std::array rawValueTable<Message::Target> = {
    RawValueRow<Message::Target>{Message::Target::all, u"all"},
    RawValueRow<Message::Target>{Message::Target::linuxBuild, u"linux"},
    RawValueRow<Message::Target>{Message::Target::macBuild, u"macos"},
    RawValueRow<Message::Target>{Message::Target::windowsBuild, u"windows"},
};

template <>
inline constexpr std::array rawValueTable<Message::Severity> = {
    RawValueRow<Message::Severity>{Message::Severity::info, u"info"},
    RawValueRow<Message::Severity>{Message::Severity::warn, u"warn"},
    RawValueRow<Message::Severity>{Message::Severity::update, u"update"},
    RawValueRow<Message::Severity>{Message::Severity::upgrade, u"upgrade"},
};

/// Of several messages the one of the highest rank is shown.
int severityRank(Message::Severity severity);

/// The document at the feed's address.
struct Feed {
    QList<Message> messages;

    bool operator==(const Feed&) const = default;

    /// Empty unless the whole document is readable: UTF-8, JSON, and every message complete with values of
    /// the right types. One bad message rejects the feed; keys that are not listed are ignored.
    static std::optional<Feed> decode(const QByteArray& json);
};
