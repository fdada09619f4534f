#include "Core/Cleanup/CacheTarget.h"

#include "Platform/CleanupTargets.h"

using namespace Qt::StringLiterals;

using Measure = CleanupRule::Measure;

namespace {

QList<CacheTarget> cachesOfTools() {
    return {
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
        {.name = QStringLiteral(QT_TRANSLATE_NOOP("Translations", "Claude Code plugin cache")),
         .symbol = u"puzzlepiece.extension"_s,
         .paths = {u"~/.claude/plugins/cache"_s, u"~/.claude/projects/-Users-orlin/memory/.cache"_s}},
        {.name = QStringLiteral(QT_TRANSLATE_NOOP("Translations", "npx cache")),
         .symbol = u"shippingbox"_s,
         .paths = {u"~/.npm/_npx"_s}},
        {.name = QStringLiteral(QT_TRANSLATE_NOOP("Translations", "Playwright browsers")),
         .symbol = u"globe.americas"_s,
         .paths = {u"~/Library/Caches/ms-playwright"_s}},
    };
}

QList<CacheTarget> restOfCatalogue() {
    return {
        {.name = QStringLiteral(QT_TRANSLATE_NOOP("Translations", "User caches")),
         .symbol = u"tray"_s,
         .paths = {u"~/Library/Caches"_s}},
        {.name = QStringLiteral(QT_TRANSLATE_NOOP("Translations", "User logs")),
         .symbol = u"scroll"_s,
         .paths = {u"~/Library/Logs"_s}},
        {.name = QStringLiteral(QT_TRANSLATE_NOOP("Translations", "Trash")),
         .symbol = u"trash"_s,
         .paths = {u"~/.Trash"_s},
         .rule = {.hasUserFiles = true}},
        {.name = QStringLiteral(QT_TRANSLATE_NOOP("Translations", "Old /tmp (>7d)")),
         .symbol = u"clock"_s,
         .paths = {u"/tmp"_s},
         .rule = {.measure = Measure::oldFiles, .olderThanDays = 7, .isShared = true}},
        {.name = QStringLiteral(QT_TRANSLATE_NOOP("Translations", "Old Downloads (>30d)")),
         .symbol = u"arrow.down.circle"_s,
         .paths = {u"~/Downloads"_s},
         .rule = {.measure = Measure::oldFiles, .olderThanDays = 30, .hasUserFiles = true}},
        {.name = QStringLiteral(QT_TRANSLATE_NOOP("Translations", "Old Desktop screenshots (>30d)")),
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
}

} // namespace

const QList<CacheTarget>& CacheTarget::defaults() {
    static const QList<CacheTarget> catalogue = cachesOfTools() + restOfCatalogue();
    return catalogue;
}

CacheTarget CacheTarget::of(const PlatformTarget& target) {
    CleanupRule rule{.hasUserFiles = target.isData};
    if (target.isContainerEngine)
        rule.measure = Measure::containers;
    else if (target.sizeCommand)
        rule.measure = Measure::command;
    else if (target.olderThanDays > 0) {
        rule.measure = Measure::oldFiles;
        rule.olderThanDays = target.olderThanDays;
        rule.isShared = target.isShared;
    }
    return {.name = target.name,
            .symbol = target.symbol,
            .paths = target.paths,
            .pruneCommand = target.command,
            .rule = rule,
            .reason = target.reason,
            .isInCleanAll = target.isInCleanAll && !target.isData,
            .sizeCommand = target.sizeCommand.value_or(QString())};
}
