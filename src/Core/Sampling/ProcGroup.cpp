#include "Core/Sampling/ProcGroup.h"

QString groupSymbol(ProcGroup group) {
    switch (group) {
    case ProcGroup::agents:
        return QStringLiteral("sparkles");
    case ProcGroup::ides:
        return QStringLiteral("chevron.left.forwardslash.chevron.right");
    case ProcGroup::terminals:
        return QStringLiteral("terminal");
    case ProcGroup::browsers:
        return QStringLiteral("globe");
    case ProcGroup::containers:
        return QStringLiteral("shippingbox");
    case ProcGroup::other:
        return QStringLiteral("square.grid.2x2");
    }
    return {};
}
