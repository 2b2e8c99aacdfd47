// What hosts do to the processes and threads that the climate file routines run in.
#ifdef __linux__
#include <gtest/gtest.h>
#include <pthread.h>
#include <signal.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

#include <thread>

#include "climate/library_copy.h"

using namespace quorvel::test;

namespace {

// A call that waits for ever ends the process.
void limit_time() { alarm(60); }  // of what would never end

bool succeeds(pid_t child) {
    int status = -1;
    return waitpid(child, &status, 0) == child && status == 0;
}

class ClimateFileProcess : public testing::Test {
  public:
    ClimateFileProcess() {
        image.fill(1, random);
        image.save(name);
        const LibraryCopy unloaded;  // leaves nothing behind that a fork would meet
        fill();
    }
    ~ClimateFileProcess() override { alarm(0); }
    void fill() {
        std::array<float, 132> records;
        records.fill(50.0f);
        library.CLBNF0(name.c_str(), 1, 0, records);
    }
    bool is_in_order() {
        std::array<float, 12> values{};
        library.CLBNF3(13, values);
        return values[0] == image.value(1, 12, 1);
    }

    TemporaryFolder folder;
    std::string name = (folder.path() / "stations").string();
    Random random{5};
    ClimateFileImage image{1, 1};
    LibraryCopy library;
};

TEST_F(ClimateFileProcess, ACancelledThreadFinishesItsCall) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the sanitizer takes what cancellation leaves of the stack for poisoned";
#endif
    limit_time();
    pthread_t thread;
    const auto call = [](void* test) -> void* {
        pthread_cancel(pthread_self());
        static_cast<ClimateFileProcess*>(test)->fill();
        static_cast<ClimateFileProcess*>(test)->name.clear();
        pthread_testcancel();
        return nullptr;
    };
    pthread_create(&thread, nullptr, call, this);
    void* result = nullptr;
    pthread_join(thread, &result);
    EXPECT_EQ(result, PTHREAD_CANCELED);
    EXPECT_EQ(name, "");
    EXPECT_TRUE(is_in_order());
}

TEST_F(ClimateFileProcess, AChildGoesOnWhileOtherThreadsOfItsParentAreInside) {
    std::atomic<bool> ended = false;
    std::thread busy([&] {
        while (!ended) fill();
    });
    for (int i = 0; i < 50 && !HasFailure(); ++i) {
        const pid_t child = fork();
        if (child == 0) {
            limit_time();
            _exit(is_in_order() ? 0 : 1);
        }
        EXPECT_TRUE(succeeds(child)) << i;
    }
    ended = true;
    busy.join();
}

// As handlers of timers and crashes do, in the middle of a call or not.
int interruptions = 0, failures = 0;
void fork_within(int) {
    if (interruptions < 0) return;
    const pid_t child = fork();
    if (child == 0)
        interruptions = -1;
    else {
        ++interruptions;
        failures += !succeeds(child);
    }
}

TEST_F(ClimateFileProcess, AForkWithinACallLetsBothFinishIt) {
    limit_time();
    signal(SIGVTALRM, fork_within);
    const itimerval often = {{0, 1000}, {0, 1000}}, never = {};
    setitimer(ITIMER_VIRTUAL, &often, nullptr);
    while (interruptions >= 0 && interruptions < 20) fill();
    if (interruptions < 0) _exit(is_in_order() ? 0 : 1);
    setitimer(ITIMER_VIRTUAL, &never, nullptr);
    EXPECT_EQ(failures, 0);
}

}  // namespace
#endif
