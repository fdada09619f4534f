#pragma once

#include <QByteArray>
#include <QCoroTask>
#include <QUrl>

#include <optional>

/// Where the announcement feed comes from.
class FeedSource {
public:
    virtual ~FeedSource() = default;

    /// The whole document at `url`; empty when it could not be had, for whatever reason. A source that is
    /// destroyed meanwhile answers so.
    virtual QCoro::Task<std::optional<QByteArray>> fetch(QUrl url) = 0;
};
