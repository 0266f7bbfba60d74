#pragma once

#include <cstdio>
#include <string>

/** The table that the programs print together, one Markdown row after the other. */
namespace Table {

const double NoGoal = 0;

enum class EUnit { NANOSECONDS, BYTES, COUNT };

inline std::string text(double value, EUnit unit)
{
    struct SScale {
        double limit;
        double divisor;
        const char *format;
    };
    static const SScale times[] = {
        {1e3, 1, "%.1f ns"}, {1e6, 1e3, "%.1f µs"}, {1e9, 1e6, "%.1f ms"}, {1e99, 1e9, "%.2f s"}};
    static const SScale sizes[] = {
        {1e3, 1, "%.0f B"}, {1e6, 1e3, "%.1f kB"}, {1e99, 1e6, "%.1f MB"}};
    static const SScale counts[] = {{1e99, 1, "%.0f"}};

    const SScale *scale = unit == EUnit::NANOSECONDS ? times
        : unit == EUnit::BYTES                       ? sizes
                                                     : counts;
    while (value >= scale->limit) {
        ++scale;
    }
    char result[32];
    std::snprintf(result, sizeof result, scale->format, value / scale->divisor);
    return result;
}

/** Prints a row. @return false when the goal, the highest ratio that is wanted, is missed */
inline bool row(const std::string &what, const std::string &size, double ours,
                const std::string &reference, double theirs, EUnit unit, double goal)
{
    const double ratio = ours / theirs;
    const bool met = goal == NoGoal || ratio <= goal;
    char numbers[64];
    if (goal == NoGoal) {
        std::snprintf(numbers, sizeof numbers, "%.2f | - | -", ratio);
    } else {
        std::snprintf(numbers, sizeof numbers, "%.2f | %.2f | %s", ratio, goal, met ? "yes" : "NO");
    }
    std::printf("| %s | %s | %s | %s: %s | %s |\n", what.c_str(), size.c_str(),
                text(ours, unit).c_str(), reference.c_str(), text(theirs, unit).c_str(), numbers);
    return met;
}

/** Prints a row for what has no counterpart. */
inline void row(const std::string &what, const std::string &size, double ours, EUnit unit)
{
    std::printf("| %s | %s | %s | - | - | - | - |\n", what.c_str(), size.c_str(),
                text(ours, unit).c_str());
}

} // namespace Table
