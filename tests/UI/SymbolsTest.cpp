#include "UI/Style/Symbols.h"

#include "Core/Alerts/Alert.h"
#include "Core/Cleanup/CacheTarget.h"
#include "Core/Sampling/ProcGroup.h"
#include "UI/RootView.h"
#include "UI/Sessions/SessionTexts.h"

#include <QImage>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QImage drawing(const QString& name) {
    return Symbols::pixmap(name, Qt::red, 24, 1).toImage();
}

bool hasInk(const QImage& image) {
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) > 128)
                return true;
        }
    }
    return false;
}

} // namespace

TEST(Symbols, EveryDrawingHasInkOfItsOwnAndTakesTheTint) {
    const QStringList names = Symbols::names();
    ASSERT_GE(names.size(), 60);
    const QImage dot = drawing(u"unknown"_s);
    for (const QString& name : names) {
        const QImage image = drawing(name);
        EXPECT_TRUE(hasInk(image)) << qPrintable(name);
        EXPECT_TRUE(name == u"unknown" || image != dot) << qPrintable(name);
        for (int x = 0; x < 24; ++x) {
            const QColor pixel = image.pixelColor(x, 12);
            EXPECT_TRUE(pixel.alpha() == 0 || (pixel.green() == 0 && pixel.blue() == 0)) << qPrintable(name);
        }
    }
}

TEST(Symbols, RecordsAndSectionsNameDrawingsThatExist) {
    QStringList used;
    for (const auto group : allCases<ProcGroup>())
        used << groupSymbol(group);
    for (const auto severity : allCases<Alert::Severity>())
        used << severitySymbol(severity);
    for (const auto tab : allCases<RootView::Tab>())
        used << tabSymbol(tab);
    for (const auto state :
         {SessionState::working, SessionState::idle, SessionState::waiting, SessionState::paused})
        used << SessionTexts::lookOf(state).symbol;
    for (const auto part : {SessionPart::agent, SessionPart::server, SessionPart::devServer,
                            SessionPart::browser, SessionPart::command})
        used << SessionTexts::symbolOf(part);
    for (const CacheTarget& target : CacheTarget::defaults())
        used << target.symbol;
    for (const QString& name : used)
        EXPECT_TRUE(Symbols::names().contains(name)) << qPrintable(name);
}

TEST(Symbols, UnknownNamesGiveTheNeutralDot) {
    const QImage dot = drawing(u"unknown"_s);
    for (const auto& name : {QString(), u"no.such.symbol"_s, u"../icons/tavrin"_s, u"trash/../bell"_s})
        EXPECT_EQ(drawing(name), dot) << qPrintable(name);
}

TEST(Symbols, AreSharpOnDenseScreens) {
    const QPixmap pixmap = Symbols::pixmap(u"gauge"_s, Qt::black, 18, 2);
    EXPECT_EQ(pixmap.size(), QSize(36, 36));
    EXPECT_EQ(pixmap.deviceIndependentSize(), QSizeF(18, 18));
}
