#include "Render/qxTiles.h"

#include <algorithm>
#include <atomic>
#include <thread>
#include <vector>

namespace {

/// Lets the threads end, whatever happens.
struct Threads {
    ~Threads()
    {
        stop = true;
        join();
    }
    void join()
    {
        for (std::thread &thread : all)
            thread.join();
        all.clear();
    }

    std::atomic<bool> stop{false};
    std::vector<std::thread> all;
};

} // namespace

bool qxForAllTiles(int count, int threads, const std::function<void(int)> &work,
                   const std::function<bool(int done)> &progress)
{
    std::atomic<int> next{0};
    std::atomic<int> done{0};
    Threads helpers;
    const auto doOne = [&] {
        const int tile = helpers.stop ? count : next++;
        if (tile >= count)
            return false;
        work(tile);
        ++done;
        return true;
    };
    const int wanted = threads > 0 ? threads : int(std::thread::hardware_concurrency());
    for (int i = 1; i < std::min(wanted, count); ++i) {
        helpers.all.emplace_back([&doOne] {
            while (doOne()) {}
        });
    }
    while (doOne()) {
        if (!progress(std::min(done.load(), count - 1)))
            return false;
    }
    helpers.join();
    return progress(count);
}
