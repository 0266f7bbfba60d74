#pragma once

#include <atomic>
#include <thread>
#include <vector>

/** Threads for tests; not QThread, whose inside a thread sanitizer cannot see. */
namespace Threads {

const int Count = 4;

/** Calls @p work with 0, 1, ... in threads of their own that begin at once; whether all are true.
 */
template <typename Work>
bool run(Work work)
{
    std::atomic<int> missing{Count};
    std::atomic<bool> ok{true};
    std::vector<std::thread> threads;
    for (int i = 0; i < Count; ++i) {
        threads.emplace_back([&, i] {
            --missing;
            while (missing > 0) {
                std::this_thread::yield();
            }
            if (!work(i)) {
                ok = false;
            }
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    return ok;
}

} // namespace Threads
