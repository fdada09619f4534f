#include "Core/Announcements/FeedTool.h"

#include "Core/Log.h"
#include "Platform/ToolRunner.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// The tool gives up on the server after 15 s, and before that may look for the system's proxy.
constexpr auto patience = 30s;

} // namespace

FeedTool::FeedTool(std::shared_ptr<ToolRunner> tools)
    : m_tools(std::move(tools)) {}

FeedTool::~FeedTool() {
    m_end.request_stop();
}

QCoro::Task<std::optional<QByteArray>> FeedTool::fetch(QUrl url) {
    if (url.host().endsWith(".invalid"_L1))
        co_return std::nullopt;
    ToolRequest request;
    request.launchPath = u"fetch_feed"_s;
    request.arguments = {url.toString(QUrl::FullyEncoded)};
    request.captureOutput = true;
    request.timeout = patience;
    request.stop = m_end.get_token();
    const auto tools = m_tools; // this source may be gone when the tool has ended
    auto running = tools->run(request);
    const ToolResult result = co_await running;
    if (!result.succeeded()) {
        qCWarning(Log::feed) << "not fetched:" << result.errorLine;
        co_return std::nullopt;
    }
    co_return result.output;
}
