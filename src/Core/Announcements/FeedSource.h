#pragma once

#include <QByteArray>
#include <QCoroTask>
#include <QUrl>

#include <optional>

/// Where the announcement feed comes from.
class FeedSource {
public:
    virtual ~FeedSource() = default;

    /// Returns the whole document at `url`. Returns an empty optional after any failure, and when the source
    /// is destroyed meanwhile.
    virtual QCoro::Task<std::optional<QByteArray>> fetch(QUrl url) = 0;
};
