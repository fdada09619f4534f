#pragma once

#include "Core/Instant.h"

#include <QLocale>
#include <QString>

/// A point in time as an abbreviated date and the time to the second, as a locale writes them:
/// "Nov 16, 2026 2:23:43 PM". In the zone of this machine.
class LocalTimeText {
public:
    explicit LocalTimeText(const QLocale& locale = QLocale());

    QString of(Instant instant) const;

private:
    QLocale m_locale;
    QString m_format;
};
