#include "Render/qxTiles.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

namespace {

/// What the threads share; it outlives them.
class Tiles {
public:
    Tiles(int count, const std::function<void(int)> &work) : m_count(count), m_work(work) {}

    /// False when there is nothing left to do.
    bool doOne()
    {
        const int tile = m_stop ? m_count : m_next++;
        if (tile >= m_count)
            return false;
        m_work(tile);
        ++m_done;
        return true;
    }

    /// As a helper does it: what goes wrong ends all and is kept for the calling thread.
    void doAll() noexcept
    {
        try {
            while (doOne()) {}
        } catch (...) {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_error = std::current_exception();
            m_stop = true;
        }
    }

    void stop() { m_stop = true; }
    int done() const { return m_done; }

    /// Once the helpers have ended.
    void rethrow() const
    {
        if (m_error)
            std::rethrow_exception(m_error);
    }

private:
    const int m_count;
    const std::function<void(int)> &m_work;
    std::atomic<int> m_next{0};
    std::atomic<int> m_done{0};
    std::atomic<bool> m_stop{false};
    std::mutex m_mutex;
    std::exception_ptr m_error;
};

/// Lets the threads end, whatever happens.
class Helpers {
public:
    explicit Helpers(Tiles &tiles) : m_tiles(tiles) {}
    ~Helpers()
    {
        m_tiles.stop();
        join();
    }

    /// Fewer when the system has no more threads.
    void start(int count)
    {
        m_threads.reserve(std::size_t(std::max(count, 0)));
        try {
            for (int i = 0; i < count; ++i)
                m_threads.emplace_back(&Tiles::doAll, &m_tiles);
        } catch (const std::system_error &) {
        }
    }

    void join()
    {
        for (std::thread &thread : m_threads)
            thread.join();
        m_threads.clear();
    }

private:
    Tiles &m_tiles;
    std::vector<std::thread> m_threads;
};

} // namespace

int &qxProgramThreads()
{
    static int threads = 0;
    return threads;
}

bool qxForAllTiles(int count, int threads, const std::function<void(int)> &work,
                   const std::function<bool(int done)> &progress)
{
    Tiles tiles(count, work);
    Helpers helpers(tiles);
    const int asked = threads > 0 ? threads : qxProgramThreads();
    const int wanted = asked > 0 ? asked : int(std::thread::hardware_concurrency());
    helpers.start(std::min(wanted, count) - 1);
    while (tiles.doOne()) {
        if (!progress(std::min(tiles.done(), count - 1)))
            return false;
    }
    helpers.join();
    tiles.rethrow();
    return progress(count);
}
