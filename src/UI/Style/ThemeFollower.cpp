#include "UI/Style/ThemeFollower.h"

#include "Platform/Appearance.h"
#include "UI/Style/Theme.h"

#include <QApplication>
#include <QPalette>

namespace {

bool isDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

} // namespace

ThemeFollower::ThemeFollower(std::unique_ptr<Appearance> appearance, QObject* parent)
    : QObject(parent)
    , m_appearance(std::move(appearance))
    , m_paletteIsDark(isDark(QApplication::palette())) {
    connect(m_appearance.get(), &Appearance::changed, this, &ThemeFollower::follow);
    follow();
}

ThemeFollower::~ThemeFollower() = default;

void ThemeFollower::follow() {
    Theme::apply(m_appearance->prefersDark().value_or(m_paletteIsDark));
}
