#include "Platform/Words.h"

using namespace Qt::StringLiterals;

const Words& Words::native() {
    static const Words words = {.computer = u"Computer"_s,
                                .system = u"Linux"_s,
                                .initProcess = u"init"_s,
                                .taskBar = u"task bar"_s,
                                .statusArea = u"Status area"_s,
                                .symbol = u"Symbol"_s};
    return words;
}
