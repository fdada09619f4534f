// Measures opening, scrolling, sorting, searching and ticking a preview of 200,000 entries, for one target
// and for "Clean All", whose targets lie in one another. Prints NAME VALUE lines, medians in milliseconds.

#include "AppModel.h"
#include "Preferences.h"
#include "UI/Cleanup/CacheDetailDrawer.h"
#include "UI/Cleanup/CleanupConfirmation.h"
#include "UI/Cleanup/CleanupTexts.h"
#include "UI/Kit/SearchField.h"
#include "UI/Kit/TableView.h"
#include "UI/Style/Style.h"
#include "UI/Style/Theme.h"
#include "support/FakePlatform.h"
#include "support/TemporarySettings.h"

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QScrollBar>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int entries = 200'000;
constexpr int rounds = 7;
constexpr int usedEntries = 40;
constexpr Instant scanned(std::chrono::seconds(1'794'839'023));

/// Returns the time of each round.
std::vector<double> timesOf(const std::function<void()>& work, const std::function<void()>& after = {}) {
    std::vector<double> seen;
    for (int round = 0; round < rounds; ++round) {
        QElapsedTimer timer;
        timer.start();
        work();
        seen.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
        if (after)
            after();
    }
    return seen;
}

double median(std::vector<double> values) {
    std::ranges::nth_element(values, values.begin() + rounds / 2);
    return values[rounds / 2];
}

/// Returns a folder with that many entries, as `cleanup` lists it, the largest first, some of them in use.
ListedFolder folderOf(const QString& path, int count) {
    QRandomGenerator random(5);
    std::vector<quint64> sizes;
    for (int i = 0; i < count; ++i)
        sizes.push_back(4096ULL * random.bounded(1, 30'000));
    std::ranges::sort(sizes, std::ranges::greater());
    QByteArray records;
    quint64 total = 0;
    for (int i = 0; const quint64 bytes : sizes) {
        total += bytes;
        const bool isUsed = i % (count / usedEntries) == 7;
        records += QByteArray::number(1'000'000 + i) + ' ' + QByteArray::number(bytes) + ' ' +
                   QByteArray::number(1'790'000'000 - random.bounded(90'000'000)) +
                   (isUsed ? " du " : " - ") + "index-v5_" + QByteArray::number(random.generate64(), 16) +
                   '\0';
    }
    const QByteArray header = "64:2 " + QByteArray::number(total) + " 1794839023000000000" + '\0';
    return {path, total, header + records, path};
}

/// Returns the folder with its records in another order.
ListedFolder shuffled(ListedFolder folder) {
    const qsizetype end = folder.listing.indexOf('\0') + 1;
    QByteArrayList records = folder.listing.sliced(end).chopped(1).split('\0');
    std::ranges::shuffle(records, QRandomGenerator(7));
    folder.listing = folder.listing.first(end) + records.join('\0') + '\0';
    return folder;
}

CacheTarget targetOf(const QString& name, const QString& path, int count) {
    CacheTarget target{.name = name, .symbol = u"shippingbox"_s, .paths = {path}};
    target.lastScanned = scanned;
    target.listed = {folderOf(path, count)};
    target.sizeBytes = target.listed.first().sizeBytes;
    target.details = {{path, target.sizeBytes}};
    return target;
}

/// Returns targets with 200,000 entries together. Half of them are in the folder of the first.
QList<CacheTarget> manyTargets() {
    constexpr int count = 10;
    QList<CacheTarget> targets;
    for (int i = 0; i < count; ++i) {
        const QString folder = i == 0       ? u"/home/a/.cache"_s
                               : i % 2 == 0 ? u"/home/a/.cache/%1"_s
                                            : u"/home/a/%1"_s;
        targets.append(targetOf(u"target %1"_s.arg(i), i == 0 ? folder : folder.arg(i), entries / count));
    }
    return targets;
}

void paint(QWidget& widget) {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    widget.grab();
}

void measureScrolling(TableView& table) {
    QScrollBar* bar = table.verticalScrollBar();
    std::vector<double> pages;
    for (int i = 0; i < 100; ++i) {
        QElapsedTimer timer;
        timer.start();
        bar->setValue((bar->value() + bar->maximum() / 5 + bar->pageStep()) % bar->maximum());
        paint(*table.viewport());
        pages.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    std::ranges::sort(pages);
    std::printf("preview_page_ms %.2f\npreview_page_slowest_ms %.2f\n", pages[50], pages.back());
}

void measureOpening(const char* name, CacheCleanup& cleanup, const CacheTarget& target) {
    std::unique_ptr<CacheDetailDrawer> drawer;
    const std::vector<double> times = timesOf(
        [&] {
            drawer = std::make_unique<CacheDetailDrawer>(cleanup, target, scanned, nullptr);
            drawer->show();
            paint(*drawer);
        },
        [&] { drawer.reset(); });
    std::printf("%s_first_ms %.1f\n%s_ms %.1f\n", name, times.front(), name, median(times));
}

void measureDrawer(CacheCleanup& cleanup) {
    measureOpening("preview_small_open", cleanup,
                   targetOf(u"pip"_s, u"/home/a/.cache/pip"_s, 2 * usedEntries));
    CacheTarget target = targetOf(u"npm"_s, u"/home/a/.npm/_cacache/index-v5"_s, entries);
    measureOpening("preview_open", cleanup, target);
    std::unique_ptr<CacheDetailDrawer> drawer;
    drawer = std::make_unique<CacheDetailDrawer>(cleanup, target, scanned, nullptr);
    drawer->show();
    paint(*drawer);
    auto& table = *drawer->findChild<TableView*>();
    measureScrolling(table);
    const auto measure = [&](const char* name, const std::function<void()>& work) {
        std::printf("preview_%s_ms %.1f\n", name, median(timesOf([&] {
                        work();
                        paint(*drawer);
                    })));
    };
    int round = 0;
    measure("tick", [&] {
        const QModelIndex row = table.model()->index(round++, 0, table.model()->index(0, 0));
        table.model()->setData(row, Qt::Unchecked, Qt::CheckStateRole);
    });
    measure("sort_by_name",
            [&] { table.sortByColumn(0, ++round % 2 ? Qt::AscendingOrder : Qt::DescendingOrder); });
    measure("search", [&] { drawer->findChild<SearchField*>()->setText(++round % 2 ? u"b7"_s : u"c3"_s); });
    std::printf("preview_question_ms %.1f\n", median(timesOf([&] { CleanupTexts::question(target); })));

    target.rule.measure = CleanupRule::Measure::oldFiles;
    target.listed = {shuffled(target.listed.first())};
    measureOpening("preview_old_files_open", cleanup, target);
}

void measureCleanAll(CacheCleanup& cleanup) {
    const QList<CacheTarget> targets = manyTargets();
    QWidget window;
    window.show();
    const auto close = [&] { delete window.findChild<QDialog*>(); };
    const std::vector<double> times = timesOf(
        [&] {
            CleanupConfirmation::askAll(&window, &window, cleanup, targets, scanned,
                                        [](const auto&, const auto&) {});
            paint(*window.findChild<QDialog*>());
        },
        close);
    std::printf("preview_all_open_ms %.1f\n", median(times));
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication app(argc, argv);
    QApplication::setStyle(new Style);
    Theme::apply({});
    const FakePlatform fakes;
    TemporarySettings settings;
    AppModel model(fakes.platform(), settings.preferences);
    measureDrawer(model.cleanup());
    measureCleanAll(model.cleanup());
    return 0;
}
