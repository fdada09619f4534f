#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

/// Watches figures of this program that have to stand still, however long it runs: they are taken and printed
/// after each quarter of the run, as "NAME_TICK VALUE".
class LongRun {
public:
    struct Figure {
        std::string name;
        double value = 0;
        double margin = 0; ///< how far the last may lie above the first
    };
    using Figures = std::function<std::vector<Figure>()>;

    /// `figures` are those of the program's own tables; descriptors and memory are watched in any case.
    LongRun(int ticks, Figures figures, double descriptorMargin = 0);

    /// After each tick.
    void ticked();
    int ticks() const { return m_ticked; }
    bool isOver() const { return m_ticked >= m_ticks; }
    /// Compares the end with the first quarter and names on standard error what has grown.
    bool stoodStill() const;

private:
    std::vector<Figure> look() const;

    int m_ticks;
    int m_ticked = 0;
    Figures m_figures;
    double m_descriptorMargin;
    std::optional<std::size_t> m_leastHeapBytes; ///< of the last ticks, as texts are dropped in bursts
    std::vector<Figure> m_first;
    std::vector<Figure> m_last;
};
