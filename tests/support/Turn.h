#pragma once

#include <QList>

#include <coroutine>

/// Suspends the coroutine that awaits it, until the test resumes it from the list.
struct Turn {
    QList<std::coroutine_handle<>>& waiting;

    bool await_ready() const noexcept { return false; }
    void await_suspend(std::coroutine_handle<> waiter) { waiting.append(waiter); }
    void await_resume() const noexcept {}
};
