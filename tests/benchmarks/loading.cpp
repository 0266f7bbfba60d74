// What a program pays for loading the library before it does anything with it: measured in fresh
// processes, in which everything of Qt is there already.

#include "benchmarks/Sizes.h"
#include "benchmarks/Table.h"
#include "configfile/ICDeviceConfigurationFile.h"
#include "support/AllocationCounter.h"

#include <algorithm>
#include <ctime>
#include <memory>

#include <dlfcn.h>

namespace {

struct SLoading {
    double loadingTime;
    double firstUseTime;
    double allocations;
    double bytes;
};

double cpuTime()
{
    timespec time = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e9 + static_cast<double>(time.tv_nsec);
}

/** Prints what it measured; only the first call in a process sees anything. */
int loadOnce()
{
    using Instance = ICDeviceConfigurationFile *(*)(ICLogfile *);

    const double start = cpuTime();
    AllocationCounter::start();
    void *const library = dlopen(VRN_LIBRARY, RTLD_NOW);
    const AllocationCounter::SCounts counts = AllocationCounter::counts();
    const double loaded = cpuTime();
    if (library == nullptr) {
        std::fprintf(stderr, "%s\n", dlerror());
        return 2;
    }
    const auto instance = reinterpret_cast<Instance>(
        dlsym(library, "_ZN25ICDeviceConfigurationFile8instanceEP9ICLogfile"));
    if (instance == nullptr) {
        std::fprintf(stderr, "%s\n", dlerror());
        return 2;
    }
    const std::unique_ptr<ICDeviceConfigurationFile> file(instance(nullptr));
    file->createNewDocument();
    const double used = cpuTime();
    std::printf("%.0f %.0f %lld %lld\n", loaded - start, used - loaded,
                static_cast<long long>(counts.allocations),
                static_cast<long long>(counts.currentBytes));
    return 0;
}

bool loadInFreshProcess(const std::string &program, SLoading &loading)
{
    FILE *const output = popen((program + " --once").c_str(), "r");
    if (output == nullptr) {
        return false;
    }
    const int count = std::fscanf(output, "%lf %lf %lf %lf", &loading.loadingTime,
                                  &loading.firstUseTime, &loading.allocations, &loading.bytes);
    return pclose(output) == 0 && count == 4;
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc == 2 && std::strcmp(argv[1], "--once") == 0) {
        return loadOnce();
    }
    SLoading shortest = {};
    const int processes = isQuick(argc, argv) ? 3 : 50;
    for (int i = 0; i < processes; ++i) {
        SLoading loading;
        if (!loadInFreshProcess(argv[0], loading)) {
            std::fputs("The library cannot be loaded.\n", stderr);
            return 2;
        }
        if (i == 0) {
            shortest = loading;
        }
        shortest.loadingTime = std::min(shortest.loadingTime, loading.loadingTime);
        shortest.firstUseTime = std::min(shortest.firstUseTime, loading.firstUseTime);
    }
    using Table::EUnit;
    Table::row("load the library", "-", shortest.loadingTime, EUnit::NANOSECONDS);
    Table::row("first new document behind that", "-", shortest.firstUseTime, EUnit::NANOSECONDS);
    Table::row("allocations of loading", "-", shortest.allocations, EUnit::COUNT);
    Table::row("memory taken by loading", "-", shortest.bytes, EUnit::BYTES);
    return 0;
}
