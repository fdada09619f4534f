#pragma once

#include <QObject>

#include <utility>

/// Holds values that others show. `objectWillChange` is emitted before each change lands; views use
/// `observe`.
class Observable : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

Q_SIGNALS:
    void objectWillChange();

protected:
    template <typename T> void publish(T& property, T value) {
        Q_EMIT objectWillChange();
        property = std::move(value);
    }
};
