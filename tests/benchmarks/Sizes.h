#pragma once

#include <cstring>
#include <string>
#include <vector>

/** What is measured: devices with so many additional files and sub-devices. */
struct SSize {
    int files;
    int subDevices;

    std::string text() const
    {
        return std::to_string(files)
            + (subDevices > 8 ? " + " + std::to_string(subDevices) + " drives" : std::string());
    }
};

/** From this size on the goals must be met: below, single allocations and cache misses decide. */
const int GoalFiles = 10000;

inline std::vector<SSize> sizes(bool quick)
{
    const std::vector<SSize> small = {{10, 0}, {1000, 8}};
    const std::vector<SSize> all = {{10, 0}, {10, 255}, {1000, 8}, {10000, 8}, {100000, 8}};
    return quick ? small : all;
}

/** The option --quick: small sizes, measured once, to see that everything runs. */
inline bool isQuick(int argc, char *argv[])
{
    return argc == 2 && std::strcmp(argv[1], "--quick") == 0;
}
