#pragma once

#include <QCoroFuture>
#include <QCoroTask>
#include <QFutureWatcher>
#include <QPromise>
#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <system_error>
#include <thread>

/// Runs `work` on a thread of its own, which shares nothing with others. Returns what it returns, or an empty
/// optional when that takes longer than `limit` or no thread can be started. Nothing waits for a thread that
/// hangs: neither the caller nor the end of the program.
template <typename Value>
QCoro::Task<std::optional<Value>> onThread(std::function<Value()> work,
                                           std::optional<std::chrono::milliseconds> limit = {}) {
    const auto promise = std::make_shared<QPromise<Value>>();
    promise->start();
    QFuture<Value> future = promise->future();
    const auto end = std::make_shared<QPromise<void>>();
    end->start();
    QFuture<void> ended = end->future();
    QFutureWatcher<Value> watcher;
    QObject::connect(&watcher, &QFutureWatcherBase::finished, [end] { end->finish(); });
    watcher.setFuture(future);
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [end] { end->finish(); });
    if (limit)
        timer.start(*limit);
    try {
        std::thread([promise, work] {
            promise->addResult(work());
            promise->finish();
        }).detach();
    } catch (const std::system_error&) {
        promise->finish();
    }
    co_await ended;
    std::optional<Value> value;
    if (future.resultCount() > 0)
        value = future.result();
    co_return value;
}
