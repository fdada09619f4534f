#pragma once

#include <QObject>

#include <memory>
#include <utility>

/// Owns values that others show. Views listen through `observe`.
class Observable : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

Q_SIGNALS:
    /// Emitted just before a value changes.
    void objectWillChange();

protected:
    template <typename T> void publish(T& property, T value) {
        Q_EMIT objectWillChange();
        property = std::move(value);
    }
};

/// Calls `handler` on a later pass of the main loop after `source` announced changes, once for a burst of
/// them. Ends with `source`, `owner` or the returned connection.
template <typename Source, typename Handler>
QMetaObject::Connection observe(Source* source, QObject* owner, Handler handler) {
    auto pending = std::make_shared<bool>(false);
    return QObject::connect(source, &Source::objectWillChange, owner,
                            [owner, pending, handler = std::move(handler)] {
                                if (std::exchange(*pending, true))
                                    return;
                                auto deliver = [pending, handler] {
                                    *pending = false;
                                    handler();
                                };
                                QMetaObject::invokeMethod(owner, deliver, Qt::QueuedConnection);
                            });
}
