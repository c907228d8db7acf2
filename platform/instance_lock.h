// Keeps a program to one running instance for each user. The instance is found by an abstract local socket
// that carries its name: the system forgets it with the process, so that nothing stale is left by a crash.
#pragma once

#include <functional>
#include <memory>
#include <string_view>

namespace orvane {

class InstanceLock {
 public:
  enum class Outcome {
    kFirst,        // this is the first instance and holds the lock
    kRunning,      // another one runs and has been asked to raise its window
    kUnavailable,  // no lock can be had (no such sockets, or the name is another user's): go on without
  };

  struct Result {
    Outcome outcome = Outcome::kUnavailable;
    std::unique_ptr<InstanceLock> lock;  // of the first instance
  };

  // Takes the lock of this name for the user, or asks its holder to raise its window. The holder's answer is
  // waited for half a second at most: one that hangs does not make the second start hang.
  static Result Acquire(std::string_view name);

  ~InstanceLock();  // stops watching, gives the lock back
  InstanceLock(const InstanceLock&) = delete;
  InstanceLock& operator=(const InstanceLock&) = delete;

  // From now on calls `raise` for every other start, those that came since Acquire included. It is called on
  // a thread of the lock's own that sleeps in the system otherwise; `raise` may only hand the word on to the
  // thread of the window. To be called once at most.
  void Watch(std::function<void()> raise);

 private:
  struct Socket;
  explicit InstanceLock(std::unique_ptr<Socket> socket);
  std::unique_ptr<Socket> socket_;
};

}  // namespace orvane
