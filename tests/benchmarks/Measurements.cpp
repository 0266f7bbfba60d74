#include "benchmarks/Measurements.h"

#include <algorithm>
#include <iterator>
#include <ostream>

namespace {

class Collector : public benchmark::BenchmarkReporter
{
public:
    explicit Collector(std::map<std::string, double> &times) : m_times(times) { }

    bool isOk() const { return m_ok; }

    bool ReportContext(const Context &) override { return true; }

    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            const std::string &name = run.run_name.function_name;
            if (run.error_occurred) {
                GetErrorStream() << name << ": " << run.error_message << '\n';
                m_ok = false;
            } else if (run.run_type == Run::RT_Iteration) {
                const double time = run.GetAdjustedCPUTime();
                const auto known = m_times.emplace(name, time).first;
                known->second = std::min(known->second, time);
            }
        }
    }

private:
    std::map<std::string, double> &m_times;
    bool m_ok = true;
};

} // namespace

bool Measurements::run(bool quick)
{
    // The library takes its options from a command line only.
    char program[] = "speed";
    char mixed[] = "--benchmark_enable_random_interleaving=true";
    char repetitions[] = "--benchmark_repetitions=9";
    char once[] = "--benchmark_repetitions=1";
    char time[] = "--benchmark_min_time=0.02";
    char shortTime[] = "--benchmark_min_time=0.01";
    char *arguments[] = {program, mixed, quick ? once : repetitions, quick ? shortTime : time,
                         nullptr};
    int count = static_cast<int>(std::size(arguments)) - 1;
    benchmark::Initialize(&count, arguments);

    Collector collector(m_times);
    benchmark::RunSpecifiedBenchmarks(&collector);
    benchmark::Shutdown();
    return collector.isOk();
}

bool Measurements::contains(const std::string &operation, const SSize &size) const
{
    return m_times.count(Operations::name(operation, size)) > 0;
}

double Measurements::time(const std::string &operation, const SSize &size) const
{
    return m_times.at(Operations::name(operation, size));
}

std::string Operations::name(const std::string &operation, const SSize &size)
{
    return operation + " / " + size.text();
}
