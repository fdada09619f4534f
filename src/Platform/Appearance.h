#pragma once

#include <QObject>
#include <QString>

#include <optional>

/// How the desktop wants programs to look. What it does not state is empty.
struct AppearanceChoice {
    std::optional<bool> dark;
    std::optional<quint32> accent; ///< 0xRRGGBB
    bool highContrast = false;
    bool reducedMotion = false;
    std::optional<double> textScale; ///< 1 is the usual size
    QString fontFamily;
    double fontPoints = 0; ///< 0 while unknown

    bool operator==(const AppearanceChoice&) const = default;
};

/// Follows the desktop's choice.
class Appearance : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    virtual AppearanceChoice choice() const = 0;

Q_SIGNALS:
    void changed();
};
