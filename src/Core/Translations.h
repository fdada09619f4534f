#pragma once

#include "Core/RawValue.h"

/// The texts on screen in the user's language.
namespace Translations {

/// Loads the file of the user's language into the running application, or the English plurals where there is
/// none.
void install();

/// A text that is stored in English, as it is shown. One that is not marked for translation stays as it is.
QString of(const QString& stored);

template <typename E> QString of(E value) {
    return of(rawValue(value));
}

} // namespace Translations
