// Elements shared out among threads.
#pragma once

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

namespace quorvel {
inline namespace v0 {
namespace detail {

/// Chunks of elements, taken one after the other by any thread.
class Chunks {
  public:
    // So many for each thread that none waits long for the last one, where elements differ.
    static constexpr std::size_t for_each_thread = 8;
    // Threads do not write into the same cache lines, and calculations come in whole packs.
    static constexpr std::size_t multiple = 64;

    Chunks(std::size_t count, std::size_t threads) : count_(count) {
        const std::size_t share = count / (threads * for_each_thread) + 1;
        size_ = threads == 1 ? count : (share + multiple - 1) / multiple * multiple;
    }

    std::size_t number() const { return size_ == 0 ? 0 : (count_ + size_ - 1) / size_; }

    /// Work on chunks until there are none, or one has failed.
    template <class F>
    void work(F& f) {
        for (std::size_t chunk; (chunk = next_++) < number();) try {
                const std::size_t first = chunk * size_;
                f(first, std::min(size_, count_ - first));
            } catch (...) {
                next_ = number();
                const std::lock_guard guard(lock_);
                if (!failure_) failure_ = std::current_exception();
            }
    }

    void rethrow() const {
        if (failure_) std::rethrow_exception(failure_);
    }

  private:
    std::size_t count_, size_;
    std::atomic<std::size_t> next_ = 0;
    std::mutex lock_;
    std::exception_ptr failure_;
};

}  // namespace detail

/// Calls f(first, count) for chunks of `count` elements, on so many threads: as many as the
/// processor runs at a time where the number is 0. Chunks begin at multiples of 64 elements. The
/// first exception that a chunk throws is thrown again when all threads have ended; chunks that
/// were not begun are left out.
template <class F>
void parallel(std::size_t count, F&& f, unsigned threads = 0) {
    if (threads == 0) threads = std::max(1u, std::thread::hardware_concurrency());
    detail::Chunks chunks(count, threads);
    const std::size_t helpers = std::min<std::size_t>(threads, chunks.number());
    {
        std::vector<std::jthread> started;
        try {
            for (std::size_t i = 1; i < helpers; ++i) started.emplace_back([&] { chunks.work(f); });
        } catch (const std::system_error&) {
            // The system has no more threads: those that there are do the work.
        }
        chunks.work(f);
    }
    chunks.rethrow();
}

}  // namespace v0
}  // namespace quorvel
