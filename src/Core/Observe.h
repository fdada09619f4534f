#pragma once

#include <QObject>

#include <memory>
#include <utility>

/// Calls `handler` on a later pass of the main loop whenever `source` announces a change, so that it reads
/// the new values. A burst of changes leads to one call. Ends with `source` or `owner`, or with
/// QObject::disconnect on the connection returned.
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
