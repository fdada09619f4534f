// Measures reading a long action log, and opening, scrolling and sorting it in the History tab. Prints NAME
// VALUE lines; times are medians in milliseconds, memory is the peak of this program.

#include "Core/ActionLog/ActionLogReader.h"
#include "Core/Iso8601.h"
#include "UI/Kit/TableView.h"
#include "UI/Settings/HistoryTab.h"
#include "UI/Style/Style.h"
#include "UI/Style/Theme.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QScrollBar>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

namespace {

constexpr int rounds = 7;

/// Writes lines in the program's format, every tenth a failure.
void writeLog(int lines) {
    QDir().mkpath(QFileInfo(ActionLogReader::path()).path());
    QFile file(ActionLogReader::path());
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write %s", qPrintable(file.fileName()));
    const Instant start(std::chrono::seconds(1'794'839'023));
    for (int i = 0; i < lines; ++i) {
        const bool success = i % 10 != 9;
        const char* kind = i % 3 == 0 ? "quit" : i % 3 == 1 ? "forceKill" : "clean";
        file.write(Iso8601::format(start + std::chrono::seconds(7 * i)) + '\t' + kind +
                   (success ? "\tok\t" : "\tfail\t") + QByteArray::number(success ? 1048576 + i : 0) +
                   "\t[free RAM] a helper process of a browser, number " + QByteArray::number(i) + '\n');
    }
}

double milliseconds(const std::function<void()>& work) {
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

double median(const std::function<void()>& work) {
    std::vector<double> seen;
    for (int round = 0; round < rounds; ++round)
        seen.push_back(milliseconds(work));
    std::nth_element(seen.begin(), seen.begin() + rounds / 2, seen.end());
    return seen[rounds / 2];
}

/// Reads VmHWM of proc(5), which is in KiB.
double peakMegabytes() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').first().toDouble() / 1024;
    }
    return 0;
}

void measureReading(int lines) {
    writeLog(lines);
    qsizetype read = 0;
    const double time = median([&read] { read = ActionLogReader::read().size(); });
    if (read != lines)
        qFatal("only %lld of %d lines were read", static_cast<long long>(read), lines);
    std::printf("history_read_%d_ms %.1f\n", lines, time);
}

void paint(QWidget& widget) {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    widget.grab();
}

void measureTab(int lines) {
    const double open = median([] {
        HistoryTab fresh;
        fresh.resize(600, 360);
        fresh.show();
        paint(fresh);
    });
    HistoryTab tab;
    tab.resize(600, 360);
    tab.show();
    auto* table = tab.findChild<TableView*>();
    QScrollBar* bar = table->verticalScrollBar();
    const double page = median([&] {
        bar->setValue((bar->value() + bar->maximum() / 5) % bar->maximum());
        paint(*table->viewport());
    });
    const double sort = median([table] {
        static bool ascending = false;
        table->sortByColumn(2, (ascending = !ascending) ? Qt::AscendingOrder : Qt::DescendingOrder);
        paint(*table->viewport());
    });
    std::printf("history_open_%d_ms %.1f\nhistory_page_%d_ms %.1f\nhistory_sort_%d_ms %.1f\n", lines, open,
                lines, page, lines, sort);
}

} // namespace

int main(int argc, char** argv) {
    const QTemporaryDir home;
    qputenv("HOME", QFile::encodeName(home.path()));
    qputenv("QT_QPA_PLATFORM", "offscreen");
    measureReading(1'000'000);
    std::printf("history_read_1000000_mb %.1f\n", peakMegabytes());
    measureReading(100'000);
    const QApplication app(argc, argv);
    QApplication::setStyle(new Style);
    Theme::apply({});
    measureTab(100'000);
    return 0;
}
