#pragma once

#include <QObject>

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
