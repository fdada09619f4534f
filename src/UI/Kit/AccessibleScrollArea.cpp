#include "UI/Kit/AccessibleScrollArea.h"

#include <QAccessibleWidget>
#include <QWidget>

namespace {

/// QAccessibleWidget checks the index of a child; Qt's own class for scroll areas does not.
QAccessibleInterface* makeInterface(const QString& className, QObject* object) {
    return className == QLatin1String("QScrollArea")
               ? new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Client)
               : nullptr;
}

} // namespace

void installAccessibleScrollAreas() {
    QAccessible::installFactory(makeInterface);
}
