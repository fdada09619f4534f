#include "UI/Style/ThemeFollower.h"

#include "Platform/Appearance.h"
#include "UI/Style/Theme.h"

#include <QApplication>
#include <QPalette>

namespace {

bool isDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

/// Returns the desktop's font. X11 has the scale of text in its resolution, which Qt reads.
QFont fontOf(const AppearanceChoice& choice, QFont font) {
    if (!choice.fontFamily.isEmpty())
        font.setFamily(choice.fontFamily);
    if (choice.fontPoints > 0)
        font.setPointSizeF(choice.fontPoints);
    if (font.pointSizeF() > 0 && QGuiApplication::platformName() != u"xcb")
        font.setPointSizeF(font.pointSizeF() * choice.textScale.value_or(1));
    return font;
}

} // namespace

ThemeFollower::ThemeFollower(std::unique_ptr<Appearance> appearance, QObject* parent)
    : QObject(parent)
    , m_appearance(std::move(appearance))
    , m_paletteIsDark(isDark(QApplication::palette()))
    , m_ownFont(QApplication::font()) {
    connect(m_appearance.get(), &Appearance::changed, this, &ThemeFollower::follow);
    follow();
}

ThemeFollower::~ThemeFollower() = default;

void ThemeFollower::follow() {
    const AppearanceChoice choice = m_appearance->choice();
    Theme::applyFont(fontOf(choice, m_ownFont));
    Theme::reduceMotion(choice.reducedMotion);
    Theme::apply({.dark = choice.dark.value_or(m_paletteIsDark),
                  .accent = choice.accent ? std::optional(QColor::fromRgb(*choice.accent)) : std::nullopt,
                  .highContrast = choice.highContrast});
}
