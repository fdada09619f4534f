#include "Core/Cleanup/CacheTarget.h"

using namespace Qt::StringLiterals;

using Measure = CleanupRule::Measure;

const QList<CacheTarget>& CacheTarget::defaults() {
    static const QList<CacheTarget> catalogue = {
        {.name = u"npm / pnpm / yarn"_s,
         .symbol = u"shippingbox"_s,
         .paths = {u"~/.npm"_s, u"~/.pnpm-store"_s, u"~/Library/Caches/Yarn"_s, u"~/.yarn/cache"_s}},
        {.name = u"Python (uv / pip)"_s,
         .symbol = u"leaf"_s,
         .paths = {u"~/Library/Caches/uv"_s, u"~/Library/Caches/pip"_s, u"~/.cache/uv"_s, u"~/.cache/pip"_s}},
        {.name = u"Cargo / Go / Swift"_s,
         .symbol = u"hammer"_s,
         .paths = {u"~/.cargo/registry/cache"_s, u"~/Library/Caches/org.swift.swiftpm"_s,
                   u"~/go/pkg/mod/cache"_s}},
        {.name = u"Xcode DerivedData"_s,
         .symbol = u"wrench"_s,
         .paths = {u"~/Library/Developer/Xcode/DerivedData"_s,
                   u"~/Library/Developer/CoreSimulator/Caches"_s}},
        {.name = u"Homebrew"_s,
         .symbol = u"mug"_s,
         .paths = {u"~/Library/Caches/Homebrew"_s},
         .pruneCommand = u"brew cleanup -s"_s},
        {.name = u"Claude Code plugin cache"_s,
         .symbol = u"puzzlepiece.extension"_s,
         .paths = {u"~/.claude/plugins/cache"_s, u"~/.claude/projects/-Users-orlin/memory/.cache"_s}},
        {.name = u"npx cache"_s, .symbol = u"shippingbox"_s, .paths = {u"~/.npm/_npx"_s}},
        {.name = u"Playwright browsers"_s,
         .symbol = u"globe.americas"_s,
         .paths = {u"~/Library/Caches/ms-playwright"_s}},
        {.name = u"User caches"_s, .symbol = u"tray"_s, .paths = {u"~/Library/Caches"_s}},
        {.name = u"User logs"_s, .symbol = u"scroll"_s, .paths = {u"~/Library/Logs"_s}},
        {.name = u"Trash"_s, .symbol = u"trash"_s, .paths = {u"~/.Trash"_s}, .rule = {.hasUserFiles = true}},
        {.name = u"Old /tmp (>7d)"_s,
         .symbol = u"clock"_s,
         .paths = {u"/tmp"_s},
         .rule = {.measure = Measure::oldFiles, .olderThanDays = 7, .isShared = true}},
        {.name = u"Old Downloads (>30d)"_s,
         .symbol = u"arrow.down.circle"_s,
         .paths = {u"~/Downloads"_s},
         .rule = {.measure = Measure::oldFiles, .olderThanDays = 30, .hasUserFiles = true}},
        {.name = u"Old Desktop screenshots (>30d)"_s,
         .symbol = u"camera.viewfinder"_s,
         .paths = {u"~/Desktop"_s},
         .rule = {.measure = Measure::oldFiles,
                  .olderThanDays = 30,
                  .screenshotsOnly = true,
                  .hasUserFiles = true}},
        {.name = u"Docker"_s,
         .symbol = u"shippingbox.fill"_s,
         .paths = {},
         .pruneCommand = u"docker system prune -af --volumes"_s,
         .rule = {.measure = Measure::containers}},
    };
    return catalogue;
}
