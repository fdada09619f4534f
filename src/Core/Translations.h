#pragma once

#include "Core/RawValue.h"

/// The texts on screen in the user's language.
namespace Translations {

/// Loads the file of the user's language into the running application, or the English plurals where there is
/// none.
void install();

/// Returns the text on screen for one that is stored in English. QT_TRANSLATE_NOOP marks it with the context
/// "Translations" where it is defined. The name of a product has no mark and is shown as it is.
QString of(const QString& stored);

template <typename E> QString of(E value) {
    return of(rawValue(value));
}

} // namespace Translations
