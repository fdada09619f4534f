#include "UI/Settings/LocalTimeText.h"

#include <QDateTime>
#include <QRegularExpression>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

/// Returns the long format with a short month, without the weekday and the separator between it and the day.
QString abbreviatedDate(const QLocale& locale) {
    static const QRegularExpression weekday(u"^dddd\\s*('[^']*')?[\\s,،]*|[\\s,،]*dddd"_s);
    return locale.dateFormat(QLocale::LongFormat).remove(weekday).replace(u"MMMM"_s, u"MMM"_s);
}

/// Returns the long format without the time zone. Letters between quotes are text.
QString standardTime(const QLocale& locale) {
    static const QRegularExpression zone(u"\\s*\\(?t+\\)?"_s);
    QStringList parts = locale.timeFormat(QLocale::LongFormat).split(u'\'');
    for (qsizetype i = 0; i < parts.size(); i += 2)
        parts[i].remove(zone);
    return parts.join(u'\'').trimmed();
}

} // namespace

LocalTimeText::LocalTimeText(const QLocale& locale)
    : m_locale(locale)
    , m_format(abbreviatedDate(locale) + u' ' + standardTime(locale)) {}

QString LocalTimeText::of(Instant instant) const {
    const auto seconds = std::chrono::floor<std::chrono::seconds>(instant.time_since_epoch());
    return m_locale.toString(QDateTime::fromSecsSinceEpoch(seconds.count()), m_format);
}
