#include "Core/Sampling/FigureHistory.h"

#include <gtest/gtest.h>

#include <cmath>

TEST(FigureHistoryTest, IsBoundedAndForgetsWhatDoesNotGoOn) {
    FigureHistory history;
    history.append(1, {}, 3);
    EXPECT_TRUE(history.times.isEmpty()) << "nothing is known of no figures";
    for (int second = 1; second <= 5; ++second)
        history.append(second, {double(second), 0}, 3);
    history.append(5, {9, 9}, 3); // the same moment again
    EXPECT_EQ(history.times, (QList<double>{3, 4, 5}));
    EXPECT_EQ(history.values, (QList<QList<double>>{{3, 4, 5}, {0, 0, 0}}));
    history.append(6, {}, 3);
    EXPECT_TRUE(std::isnan(history.values[1].last()));
    history.append(7, {1}, 3); // a core was switched off
    EXPECT_EQ(history.times, QList<double>{7});
    history.append(2, {1}, 3); // the clock was set back
    EXPECT_EQ(history.times, QList<double>{2});
}
