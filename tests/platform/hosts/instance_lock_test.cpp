#include "platform/instance_lock.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <future>
#include <string>
#include <vector>

namespace orvane {
namespace {

using Outcome = InstanceLock::Outcome;

// A name of this process and test alone, so that tests running side by side do not meet.
std::string Name() {
  return "test-" + std::to_string(getpid()) + "-" +
         ::testing::UnitTest::GetInstance()->current_test_info()->name();
}

TEST(InstanceLockTest, BelongsToTheFirst) {
  const InstanceLock::Result first = InstanceLock::Acquire(Name());
  EXPECT_EQ(first.outcome, Outcome::kFirst);
  EXPECT_NE(first.lock, nullptr);
}

TEST(InstanceLockTest, IsFreeAgainAfterItsHolder) {
  for (int round = 0; round < 3; ++round) {
    InstanceLock::Result held = InstanceLock::Acquire(Name());
    EXPECT_EQ(held.outcome, Outcome::kFirst);
    held.lock->Watch([] {});
  }
}

TEST(InstanceLockTest, DoesNotMixNames) {
  const InstanceLock::Result one = InstanceLock::Acquire(Name() + "a");
  const InstanceLock::Result other = InstanceLock::Acquire(Name() + "b");
  EXPECT_EQ(one.outcome, Outcome::kFirst);
  EXPECT_EQ(other.outcome, Outcome::kFirst);
}

TEST(InstanceLockTest, TellsTheHolderOfEveryOtherStart) {
  InstanceLock::Result first = InstanceLock::Acquire(Name());
  int raised = 0;
  first.lock->Watch([&raised] { ++raised; });
  for (int start = 0; start < 3; ++start) {
    const InstanceLock::Result second = InstanceLock::Acquire(Name());
    EXPECT_EQ(second.outcome, Outcome::kRunning);
    EXPECT_EQ(second.lock, nullptr);
  }
  first.lock.reset();  // Joins the watcher: what it counted can be read.
  EXPECT_EQ(raised, 3);
}

TEST(InstanceLockTest, KeepsAStartThatCameBeforeTheHolderWatched) {
  InstanceLock::Result first = InstanceLock::Acquire(Name());
  EXPECT_EQ(InstanceLock::Acquire(Name()).outcome, Outcome::kRunning);
  std::promise<void> raised;
  first.lock->Watch([&raised] { raised.set_value(); });
  EXPECT_EQ(raised.get_future().wait_for(std::chrono::seconds(20)), std::future_status::ready);
}

TEST(InstanceLockTest, DoesNotHangWithAHolderThatHangs) {
  const InstanceLock::Result first = InstanceLock::Acquire(Name());  // never watches
  const auto begin = std::chrono::steady_clock::now();
  EXPECT_EQ(InstanceLock::Acquire(Name()).outcome, Outcome::kRunning);
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(10));
}

TEST(InstanceLockTest, HasAnAnswerEvenWhenTheHoldersQueueIsFull) {
  const InstanceLock::Result first = InstanceLock::Acquire(Name());  // never watches
  std::vector<std::future<Outcome>> starts;
  for (int start = 0; start < 40; ++start) {
    starts.push_back(
        std::async(std::launch::async, [name = Name()] { return InstanceLock::Acquire(name).outcome; }));
  }
  for (std::future<Outcome>& start : starts) EXPECT_EQ(start.get(), Outcome::kRunning);
}

// Runs in a child process: takes the lock, says so, and waits to be killed.
[[noreturn]] void HoldUntilKilled(const std::string& name, int tell) {
  const InstanceLock::Result held = InstanceLock::Acquire(name);
  const char answer = held.outcome == Outcome::kFirst ? 'y' : 'n';
  if (write(tell, &answer, 1) != 1) _exit(1);
  for (;;) pause();
}

TEST(InstanceLockTest, IsNotLeftBehindByACrash) {
  const std::string name = Name();
  int ends[2];
  ASSERT_EQ(pipe(ends), 0);
  const pid_t child = fork();
  ASSERT_GE(child, 0);
  if (child == 0) HoldUntilKilled(name, ends[1]);
  char answer = '?';
  ASSERT_EQ(read(ends[0], &answer, 1), 1);
  EXPECT_EQ(answer, 'y');
  EXPECT_EQ(InstanceLock::Acquire(name).outcome, Outcome::kRunning);
  kill(child, SIGKILL);
  waitpid(child, nullptr, 0);
  EXPECT_EQ(InstanceLock::Acquire(name).outcome, Outcome::kFirst);
  close(ends[0]);
  close(ends[1]);
}

}  // namespace
}  // namespace orvane
