#pragma once

#include "Core/Instant.h"

#include <QLocale>
#include <QString>

/// Writes a point in time as a locale does, with an abbreviated date, to the second and in the time zone of
/// this machine: "Nov 16, 2026 2:23:43 PM".
class LocalTimeText {
public:
    explicit LocalTimeText(const QLocale& locale = QLocale());

    QString of(Instant instant) const;

private:
    QLocale m_locale;
    QString m_format;
};
