#pragma once

#include "benchmarks/Sizes.h"

#include <benchmark/benchmark.h>

#include <map>
#include <string>

/** CPU times in nanoseconds by the names of the operations and their sizes. */
class Measurements
{
public:
    /**
     * Measures everything that was registered. The repetitions of all operations are mixed, and
     * the shortest one counts: what disturbs a measurement only ever makes it longer.
     */
    bool run(bool quick);

    bool contains(const std::string &operation, const SSize &size) const;
    double time(const std::string &operation, const SSize &size) const;

private:
    std::map<std::string, double> m_times;
};

namespace Operations {

std::string name(const std::string &operation, const SSize &size);

void registerDocuments(const SSize &size);
/** Appending the last one of so many files, and taking it away again. */
void registerAppending(const SSize &size);
void registerElements(const SSize &size);
void registerCheck(const SSize &size);
/** Checking so many small documents, one after the other. */
void registerCheckOfDocuments(const SSize &size);

/** Measures @p run on what @p make gives; making it and throwing it away does not count. */
template <typename Make, typename Run>
void measure(const std::string &operation, const SSize &size, Make make, Run run)
{
    benchmark::RegisterBenchmark(name(operation, size).c_str(), [=](benchmark::State &state) {
        for (auto _ : state) {
            state.PauseTiming();
            {
                auto subject = make();
                state.ResumeTiming();
                const bool ok = run(subject);
                state.PauseTiming();
                if (!ok) {
                    state.SkipWithError("it failed");
                    break;
                }
            }
            state.ResumeTiming();
        }
    });
}

/** As above for what can be done again and again; also fit for a few nanoseconds. */
template <typename Run>
void measure(const std::string &operation, const SSize &size, Run run)
{
    benchmark::RegisterBenchmark(name(operation, size).c_str(), [=](benchmark::State &state) {
        for (auto _ : state) {
            if (!run()) {
                state.SkipWithError("it failed");
                break;
            }
        }
    });
}

} // namespace Operations
