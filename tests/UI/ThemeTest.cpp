#include "UI/Style/Theme.h"

#include "UI/Kit/TextLabel.h"

#include <QApplication>
#include <QFontInfo>
#include <QPalette>

#include <gtest/gtest.h>

using Theme::Role;

namespace {

/// Returns `color` painted over the opaque `ground`.
QColor over(const QColor& color, const QColor& ground) {
    const auto part = [&](int upper, int lower) { return qRound(lower + (upper - lower) * color.alphaF()); };
    return {part(color.red(), ground.red()), part(color.green(), ground.green()),
            part(color.blue(), ground.blue())};
}

constexpr Role fills[] = {Role::windowFill, Role::sidebarFill, Role::cardFill};
constexpr Role tints[] = {Role::accent, Role::green,  Role::yellow, Role::orange,
                          Role::red,    Role::purple, Role::blue,   Role::indigo};
constexpr double forText = 4.5;
constexpr double forSymbols = 3;

void expectReadable(const QColor& text, const QColor& ground, double least, const std::string& what) {
    EXPECT_GE(Theme::contrast(text, ground), least)
        << what << (Theme::isDark() ? " dark " : " light ") << text.name().toStdString() << " on "
        << ground.name().toStdString();
}

/// Checks every pair of text and ground that the screens have.
void expectEverythingReadable() {
    for (const Role role : fills) {
        const QColor fill = Theme::color(role);
        const QColor selected = over(Theme::color(Role::accent, 0.16), fill);
        const QColor hovered = over(Theme::color(Role::hoverFill), fill);
        for (const Role text : {Role::primaryText, Role::secondaryText}) {
            for (const QColor& ground : {fill, selected, hovered})
                expectReadable(Theme::color(text), ground, forText, "text");
        }
        for (const Role tint : tints) {
            const QColor ink = Theme::color(tint);
            expectReadable(ink, fill, forText, "tint");
            if (role != Role::sidebarFill)
                expectReadable(ink, over(Theme::color(tint, 0.1), fill), forText, "figure on its tint");
            expectReadable(ink, selected, forSymbols, "symbol on a selection");
            expectReadable(Theme::textOnTint(tint),
                           over(Theme::color(tint, 0.18), over(Theme::color(tint, 0.08), fill)), forText,
                           "banner's action");
            for (const Role text : {Role::primaryText, Role::secondaryText})
                expectReadable(Theme::color(text), over(Theme::color(tint, 0.08), fill), forText, "notice");
        }
        expectReadable(Theme::color(Role::gray), fill, forSymbols, "off switch");
        expectReadable(Theme::color(Role::controlBorder), fill, forSymbols, "border of a control");
    }
}

} // namespace

TEST(Theme, EveryTextAndSymbolCanBeReadOnItsGround) {
    for (const bool dark : {false, true}) {
        Theme::apply({.dark = dark});
        expectEverythingReadable();
        // white texts: a button, a tile of the widget from one end of its gradient to the other, a badge
        for (const Role tint : tints) {
            const QColor tile = Theme::tileColor(tint);
            const QColor title = over(QColor(255, 255, 255, 217), tile);
            expectReadable(Qt::white, tile, forText, "button");
            expectReadable(title, tile, forText, "tile's title");
            for (const Role fill : {Role::windowFill, Role::cardFill})
                expectReadable(Qt::white, over(Theme::tileColor(tint, 0.85), Theme::color(fill)), forText,
                               "badge");
        }
        expectReadable(Qt::black, Theme::color(Role::lime), forText, "upgrade");
    }
    Theme::apply({});
}

TEST(Theme, AnAccentOfTheDesktopIsMadeReadable) {
    for (const QRgb accent : {0xffffff00U, 0xff000000U, 0xffffffffU, 0xffe66100U, 0xff3584e4U}) {
        for (const bool dark : {false, true}) {
            Theme::apply({.dark = dark, .accent = QColor(accent)});
            expectEverythingReadable();
            expectReadable(Qt::white, Theme::tileColor(Role::accent), forText, "accent");
        }
    }
    Theme::apply({});
}

TEST(Theme, HighContrastHasNoFaintText) {
    for (const bool dark : {false, true}) {
        Theme::apply({.dark = dark, .highContrast = true});
        EXPECT_GE(Theme::contrast(Theme::color(Role::secondaryText), Theme::color(Role::cardFill)), 7);
        EXPECT_GE(Theme::contrast(Theme::color(Role::cardBorder), Theme::color(Role::windowFill)), 3);
    }
    Theme::apply({});
}

TEST(Theme, SizesGrowWithTheDesktopsFontAlsoWhileRunning) {
    const QFont before = QApplication::font();
    QWidget window;
    auto* label = new TextLabel(Theme::TextStyle::caption, {}, &window);
    auto* button = new QWidget(&window);
    Theme::fixHeight(button, Theme::controlHeight);
    EXPECT_EQ(button->height(), 28);
    EXPECT_GE(QFontInfo(label->font()).pixelSize(), 11);
    QFont larger = before;
    larger.setPointSizeF(before.pointSizeF() * 2);
    Theme::applyFont(larger);
    EXPECT_GT(Theme::scale(), 1.4);
    EXPECT_EQ(button->height(), Theme::scaled(28));
    EXPECT_EQ(label->font().pointSizeF(), Theme::font(Theme::TextStyle::caption).pointSizeF());
    Theme::applyFont(before);
    EXPECT_EQ(button->height(), 28);
}

TEST(Theme, SchemeReachesTheApplicationsPalette) {
    Theme::apply({.dark = true});
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), Theme::color(Role::windowFill));
    EXPECT_LT(QApplication::palette().color(QPalette::Window).lightness(), 60);
    Theme::apply({});
    EXPECT_GT(QApplication::palette().color(QPalette::Window).lightness(), 200);
}

TEST(Theme, ATintedLabelFollowsTheScheme) {
    QWidget window;
    auto* label = new TextLabel(Theme::TextStyle::body, {}, &window);
    label->tinted(Role::red);
    window.show();
    for (const bool dark : {true, false}) {
        Theme::apply({.dark = dark});
        QCoreApplication::processEvents();
        EXPECT_EQ(label->palette().color(QPalette::WindowText), Theme::color(Role::red)) << dark;
    }
}
