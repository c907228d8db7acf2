#include "platform/instance_lock.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <string>
#include <thread>
#include <utility>

namespace orvane {
namespace {

constexpr int kAnswerMilliseconds = 500;
// The holder of the name may be between taking it and listening, or just about to go.
constexpr int kAttempts = 50;
constexpr int kPauseMilliseconds = 2;
constexpr int kWaitingStarts = 16;

class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  ~Descriptor() {
    if (number_ >= 0) close(number_);
  }
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  Descriptor& operator=(Descriptor&&) = delete;
  int Number() const { return number_; }
  bool Open() const { return number_ >= 0; }

 private:
  int number_;
};

struct Address {
  sockaddr_un name{};
  socklen_t length = 0;
  const sockaddr* Get() const { return reinterpret_cast<const sockaddr*>(&name); }
};

// An abstract name begins with a zero and fills the path up to its length; what does not fit is left off.
Address AddressOf(std::string_view name) {
  const std::string text = "orvane-" + std::to_string(getuid()) + "-" + std::string(name);
  Address address;
  address.name.sun_family = AF_UNIX;
  const std::size_t size = std::min(text.size(), sizeof(address.name.sun_path) - 1);
  std::memcpy(address.name.sun_path + 1, text.data(), size);
  address.length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + size);
  return address;
}

Descriptor MakeSocket() { return Descriptor(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)); }

bool IsOurs(int connection) {
  ucred peer{};
  socklen_t size = sizeof peer;
  return getsockopt(connection, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == getuid();
}

// The connection is the request; the answer is one byte.
void AwaitAnswer(int connection) {
  pollfd waiting{connection, POLLIN, 0};
  poll(&waiting, 1, kAnswerMilliseconds);
}

}  // namespace

struct InstanceLock::Socket {
  explicit Socket(Descriptor opened) : listener(std::move(opened)) {}

  Descriptor listener;
  std::thread watcher;
};

InstanceLock::InstanceLock(std::unique_ptr<Socket> socket) : socket_(std::move(socket)) {}

InstanceLock::Result InstanceLock::Acquire(std::string_view name) {
  const Address address = AddressOf(name);
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    Descriptor listener = MakeSocket();
    if (!listener.Open()) return {};
    if (bind(listener.Number(), address.Get(), address.length) == 0) {
      if (listen(listener.Number(), kWaitingStarts) != 0) return {};
      auto socket = std::make_unique<Socket>(std::move(listener));
      return {Outcome::kFirst, std::unique_ptr<InstanceLock>(new InstanceLock(std::move(socket)))};
    }
    if (errno != EADDRINUSE) return {};
    // Without blocking: a holder that no longer takes connections has its queue full, which is an answer.
    const Descriptor connection(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    if (!connection.Open()) return {};
    if (connect(connection.Number(), address.Get(), address.length) == 0) {
      if (!IsOurs(connection.Number())) return {};
      AwaitAnswer(connection.Number());
      return {Outcome::kRunning, nullptr};
    }
    if (errno == EAGAIN) return {Outcome::kRunning, nullptr};
    poll(nullptr, 0, kPauseMilliseconds);
  }
  return {};
}

void InstanceLock::Watch(std::function<void()> raise) {
  const int listener = socket_->listener.Number();
  socket_->watcher = std::thread([listener, raise = std::move(raise)] {
    for (;;) {
      const Descriptor connection(accept4(listener, nullptr, nullptr, SOCK_CLOEXEC));
      if (!connection.Open()) {
        if (errno == EINTR || errno == ECONNABORTED) continue;
        return;  // Shut down by the destructor.
      }
      if (!IsOurs(connection.Number())) continue;
      raise();
      const char answer = 1;
      // Nobody may be there to read it any more; that must not raise a signal.
      [[maybe_unused]] const ssize_t sent = send(connection.Number(), &answer, sizeof answer, MSG_NOSIGNAL);
    }
  });
}

InstanceLock::~InstanceLock() {
  shutdown(socket_->listener.Number(), SHUT_RDWR);
  if (socket_->watcher.joinable()) socket_->watcher.join();
}

}  // namespace orvane
