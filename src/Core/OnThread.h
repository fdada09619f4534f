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
#include <utility>

/// Starts `work` on a thread of its own, which owns what it uses. Returns false when no thread can be
/// started. Nothing waits for a thread that hangs, not even the end of the program.
inline bool startThread(std::function<void()> work) {
    try {
        std::thread(std::move(work)).detach();
    } catch (const std::system_error&) {
        return false;
    }
    return true;
}

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
    const bool isStarted = startThread([promise, work] {
        promise->addResult(work());
        promise->finish();
    });
    if (!isStarted)
        promise->finish();
    co_await ended;
    std::optional<Value> value;
    if (future.resultCount() > 0)
        value = future.result();
    co_return value;
}
