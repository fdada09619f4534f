#pragma once

#include "Core/RawValue.h"

/// The language of the texts on screen. A raw value is the name of the file in resources/translations.
enum class Language { system, english, german, french, spanish, chinese, japanese };

template <>
inline constexpr std::array rawValueTable<Language> = {
    RawValueRow{Language::system, "system"}, RawValueRow{Language::english, "en"},
    RawValueRow{Language::german, "de"},     RawValueRow{Language::french, "fr"},
    RawValueRow{Language::spanish, "es"},    RawValueRow{Language::chinese, "zh_CN"},
    RawValueRow{Language::japanese, "ja"},
};
