#pragma once

#include "Core/Announcements/FeedSource.h"

#include <memory>
#include <stop_token>

class ToolRunner;

/// Has the feed fetched by a tool of our own, which is ended with this source. A host below ".invalid",
/// which never resolves, is not asked: it stands for a feed that does not exist yet.
class FeedTool : public FeedSource {
public:
    explicit FeedTool(std::shared_ptr<ToolRunner> tools);
    ~FeedTool() override;

    QCoro::Task<std::optional<QByteArray>> fetch(QUrl url) override;

private:
    std::shared_ptr<ToolRunner> m_tools;
    std::stop_source m_end;
};
