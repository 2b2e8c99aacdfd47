// A lock of the system, usable with std::lock_guard. Constant-initialised; std::mutex would make
// the library depend on the C++ runtime.
#pragma once

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#else
#include <pthread.h>
#include <atomic>
#endif

namespace quorvel {

#ifdef _WIN32
class Lock {
  public:
    constexpr Lock() noexcept = default;
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;

    void lock() noexcept { AcquireSRWLockExclusive(&handle_); }
    void unlock() noexcept { ReleaseSRWLockExclusive(&handle_); }

  private:
    SRWLOCK handle_ = SRWLOCK_INIT;
};

template <Lock&>
struct KeptOverForks {};
#else
// Cancellation of the thread is held off while it has the lock, which would stay locked otherwise.
class Lock {
  public:
    constexpr Lock() noexcept = default;
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;

    void lock() noexcept {
        int cancellation;
        pthread_setcancelstate(PTHREAD_CANCEL_DISABLE, &cancellation);
        pthread_mutex_lock(&handle_);
        cancellation_ = cancellation;
        owner_.store(pthread_self(), std::memory_order_relaxed);
    }
    void unlock() noexcept {
        const int cancellation = cancellation_;
        owner_.store({}, std::memory_order_relaxed);
        pthread_mutex_unlock(&handle_);
        pthread_setcancelstate(cancellation, nullptr);
    }

    // Before and after a fork, by the thread that forks. One that has the lock already, and forks
    // in a signal handler, keeps it: in both processes it returns to the call that it was in.
    void hold_for_fork() noexcept {
        if (owner_.load(std::memory_order_relaxed) == pthread_self()) return;
        lock();
        held_for_fork_ = true;
    }
    void release_after_fork() noexcept {
        if (!held_for_fork_) return;
        held_for_fork_ = false;
        unlock();
    }

  private:
    pthread_mutex_t handle_ = PTHREAD_MUTEX_INITIALIZER;
    int cancellation_ = PTHREAD_CANCEL_ENABLE;  // of the owner, before
    std::atomic<pthread_t> owner_{};
    bool held_for_fork_ = false;
};

// To stand beside a lock: a process forks when no other thread has it, so that the child has what
// the lock guards as a whole, and the lock free. Unloading the library ends this.
template <Lock& lock>
struct KeptOverForks {
    KeptOverForks() noexcept {
        constexpr auto release = [] { lock.release_after_fork(); };
        pthread_atfork([] { lock.hold_for_fork(); }, release, release);
    }
};
#endif

}  // namespace quorvel
