#include "UI/Settings/LocalTimeText.h"

#include "Core/Formatters.h"

#include <QDateTime>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

/// Returns the long format with a short month, without the weekday and the separator between it and the day.
QString abbreviatedDate(const QLocale& locale) {
    static const QRegularExpression weekday(u"^dddd\\s*('[^']*')?[\\s,،]*|[\\s,،]*dddd"_s);
    return locale.dateFormat(QLocale::LongFormat).remove(weekday).replace(u"MMMM"_s, u"MMM"_s);
}

} // namespace

LocalTimeText::LocalTimeText(const QLocale& locale)
    : m_locale(locale)
    , m_format(abbreviatedDate(locale) + u' ' + Formatters::timeFormat(locale)) {}

QString LocalTimeText::of(Instant instant) const {
    const auto seconds = std::chrono::floor<std::chrono::seconds>(instant.time_since_epoch());
    return m_locale.toString(QDateTime::fromSecsSinceEpoch(seconds.count()), m_format);
}
