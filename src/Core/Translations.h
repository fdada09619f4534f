#pragma once

#include "Core/Language.h"

/// The texts on screen in the user's language.
namespace Translations {

/// Loads the texts of the language into the running application, those of Qt too, and makes its figures,
/// dates and times the default. Where the system's language has no file, the texts are English.
void install(Language language);

/// Returns the language's own name. That of the system is in the language on screen.
QString nameOf(Language language);

/// Returns the text on screen for one that is stored in English. QT_TRANSLATE_NOOP marks it with the context
/// "Translations" where it is defined. The name of a product has no mark and is shown as it is.
QString of(const QString& stored);

template <typename E> QString of(E value) {
    return of(rawValue(value));
}

} // namespace Translations
