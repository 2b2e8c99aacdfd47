// A lock of the system, usable with std::lock_guard. Constant-initialised, so that loading the
// library runs nothing; std::mutex would make the library depend on the C++ runtime.
#pragma once

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#else
#include <pthread.h>
#endif

namespace quorvel {

class Lock {
  public:
    constexpr Lock() noexcept = default;
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;

#ifdef _WIN32
    void lock() noexcept { AcquireSRWLockExclusive(&handle_); }
    void unlock() noexcept { ReleaseSRWLockExclusive(&handle_); }

  private:
    SRWLOCK handle_ = SRWLOCK_INIT;
#else
    void lock() noexcept { pthread_mutex_lock(&handle_); }
    void unlock() noexcept { pthread_mutex_unlock(&handle_); }

  private:
    pthread_mutex_t handle_ = PTHREAD_MUTEX_INITIALIZER;
#endif
};

}  // namespace quorvel
