#pragma once

#include <QObject>

#include <optional>

/// The desktop's choice between light and dark.
class Appearance : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// Returns an empty optional while the desktop states no preference.
    virtual std::optional<bool> prefersDark() const = 0;

Q_SIGNALS:
    void changed();
};
