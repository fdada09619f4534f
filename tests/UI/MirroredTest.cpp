#include "UI/Kit/Slider.h"
#include "UI/Style/MenuDrawing.h"
#include "UI/Style/Painting.h"

#include <QImage>
#include <QPainter>
#include <QStyleOption>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr QRectF paper(0, 0, 120, 20);

template <typename Draw> QImage drawn(Qt::LayoutDirection direction, Draw draw) {
    QImage image(paper.size().toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    Painting::mirror(painter, paper, direction);
    painter.setPen(Qt::black);
    draw(painter);
    painter.end();
    return image;
}

} // namespace

TEST(MirroredTest, PlacesChangeSidesAndTextsAndTicksStayReadable) {
    for (const QString& text : {u"~/src/app (12)"_s, u"42%"_s}) {
        const QImage left = drawn(Qt::RightToLeft, [&](QPainter& painter) {
            Painting::drawTabular(painter, paper, Qt::AlignLeft, text);
        });
        EXPECT_EQ(left, drawn(Qt::LeftToRight,
                              [&](QPainter& painter) {
                                  Painting::drawTabular(painter, paper, Qt::AlignRight, text);
                              }))
            << qPrintable(text);
        EXPECT_NE(left, drawn(Qt::LeftToRight, [](QPainter&) {}));
    }
    const QImage tick = drawn(Qt::RightToLeft, [](QPainter& painter) {
        Painting::drawTickBox(painter, QRectF(4, 2, 16, 16), Qt::Checked);
    });
    EXPECT_GT(tick.pixelColor(111, 8).red(), tick.pixelColor(104, 8).red() + 50)
        << "its long leg is on the right";
    const QImage quarter = drawn(
        Qt::RightToLeft, [](QPainter& painter) { Painting::drawProgress(painter, paper, 0.25, Qt::red); });
    EXPECT_EQ(quarter.pixelColor(110, 10), QColor(Qt::red));
    EXPECT_NE(quarter.pixelColor(80, 10), QColor(Qt::red));
    EXPECT_EQ(Painting::mirrored({10, 5}, paper, Qt::RightToLeft), QPointF(110, 5));
}

TEST(MirroredTest, AMenuHasItsTextAtTheRightAndItsKeysAtTheLeft) {
    constexpr QRect row(0, 0, 240, 32);
    const auto hasInk = [&](Qt::LayoutDirection direction, const QString& text, const QRect& area) {
        QImage image(row.size(), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        QStyleOptionMenuItem item;
        item.rect = row;
        item.direction = direction;
        item.text = text;
        item.state = QStyle::State_Enabled;
        MenuDrawing::drawItem(painter, item);
        painter.end();
        for (int x = area.left(); x <= area.right(); ++x) {
            for (int y = area.top(); y <= area.bottom(); ++y) {
                if (image.pixelColor(x, y) != QColor(Qt::white))
                    return true;
            }
        }
        return false;
    };
    const QRect left = row.adjusted(0, 0, -180, 0);
    const QRect right = row.adjusted(180, 0, 0, 0);
    EXPECT_TRUE(hasInk(Qt::LeftToRight, u"&Quit"_s, left) && !hasInk(Qt::LeftToRight, u"&Quit"_s, right));
    EXPECT_TRUE(hasInk(Qt::RightToLeft, u"&Quit"_s, right) && !hasInk(Qt::RightToLeft, u"&Quit"_s, left));
    EXPECT_TRUE(hasInk(Qt::RightToLeft, u"\tDel"_s, left) && !hasInk(Qt::RightToLeft, u"\tDel"_s, right));
}

TEST(MirroredTest, ASliderBeginsAtTheRight) {
    Slider slider;
    slider.setLayoutDirection(Qt::RightToLeft);
    slider.resize(200, slider.height());
    slider.setRange(0, 100);
    slider.setValue(50);
    slider.show();
    QTest::mouseClick(&slider, Qt::LeftButton, {}, {195, 10});
    EXPECT_EQ(slider.value(), 0);
    QTest::mouseClick(&slider, Qt::LeftButton, {}, {5, 10});
    EXPECT_EQ(slider.value(), 100);
}
