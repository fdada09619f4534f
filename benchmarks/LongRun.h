#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

/// Checks that figures of this program do not grow. It prints them after each quarter of the run, as
/// "NAME_TICK VALUE".
class LongRun {
public:
    struct Figure {
        std::string name;
        double value = 0;
        double margin = 0; ///< by which the last may exceed the first
    };
    using Figures = std::function<std::vector<Figure>()>;

    /// Checks descriptors and memory besides `figures`.
    LongRun(int ticks, Figures figures, double descriptorMargin = 0);

    /// Counts a tick.
    void ticked();
    int ticks() const { return m_ticked; }
    bool isOver() const { return m_ticked >= m_ticks; }
    /// Compares the end with the first quarter and prints the figures that have grown on standard error.
    bool stoodStill() const;

private:
    std::vector<Figure> look() const;

    int m_ticks;
    int m_ticked = 0;
    Figures m_figures;
    double m_descriptorMargin;
    std::optional<std::size_t> m_minHeapBytes; ///< of the quarter's last ticks, as texts are freed in bursts
    std::vector<Figure> m_first;
    std::vector<Figure> m_last;
};
