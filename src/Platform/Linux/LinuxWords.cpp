#include "Platform/Words.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

Words Words::native() {
    return {.computer = QCoreApplication::translate("Words", "Computer"),
            .system = u"Linux"_s,
            .initProcess = u"init"_s,
            .taskBar = QCoreApplication::translate("Words", "task bar"),
            .statusArea = QCoreApplication::translate("Words", "Status area"),
            .symbol = QCoreApplication::translate("Words", "Symbol")};
}
