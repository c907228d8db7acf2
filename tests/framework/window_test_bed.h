// Windows that write down the messages they get.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "framework/zel_window.h"
#include "tests/framework/test_shell.h"

namespace orvane::testing {

// One message as the object saw it, with the state at that moment.
struct Seen {
  std::uint32_t message = 0;
  bool visible = false;
  bool focused = false;
  bool onTop = false;  // of the tool stack
};

class Probe : public ZelWindow {
 public:
  using ZelWindow::ZelWindow;

  Result OnMessage(std::uint32_t message, WParam w, LParam l) override {
    const Device& device = GetShell().GetDevice();
    seen.push_back({message, IsVisible(), device.Focus() == Handle(), GetShell().Tools().Top() == this});
    if (message == WM_CREATE) {
      bound = device.UserData(Handle()) == this;
      record = *reinterpret_cast<const CreationRecord*>(l);
    }
    if (hook) hook(message);
    return ZelWindow::OnMessage(message, w, l);
  }
  std::string ClassName() const override { return "wnd_probe"; }

  // The messages among these, in order.
  std::vector<std::uint32_t> Order(const std::vector<std::uint32_t>& wanted) const {
    std::vector<std::uint32_t> order;
    for (const Seen& one : seen) {
      if (std::find(wanted.begin(), wanted.end(), one.message) != wanted.end()) order.push_back(one.message);
    }
    return order;
  }
  const Seen& First(std::uint32_t message) const {
    static const Seen nothing;
    const auto at =
        std::find_if(seen.begin(), seen.end(), [message](const Seen& one) { return one.message == message; });
    EXPECT_NE(at, seen.end()) << std::hex << message;
    return at == seen.end() ? nothing : *at;
  }
  bool Saw(std::uint32_t message) const {
    return std::any_of(seen.begin(), seen.end(),
                       [message](const Seen& one) { return one.message == message; });
  }

  std::vector<Seen> seen;
  bool bound = false;
  std::optional<CreationRecord> record;
  std::function<void(std::uint32_t)> hook;
};

using Tools = std::vector<ZelWindow*>;

// Makes tools that fill the client area, and children of 100 × 100.
class ZelWindowTest : public ::testing::Test {
 protected:
  std::unique_ptr<Probe> MakeTool() {
    auto tool = MakeWindow<Probe>(shell_, shell_.MainWindow(), true);
    tool->SetStyle(0, 0);
    tool->Move(0, 0, 240, 268);
    tool->seen.clear();
    return tool;
  }
  std::unique_ptr<Probe> MakeChild(const ZelWindow& parent) {
    auto child = MakeWindow<Probe>(shell_, parent.Handle(), false);
    child->Move(0, 0, 100, 100);
    child->seen.clear();
    return child;
  }
  const Tools& Stack() { return shell_.Tools().Tools(); }
  Device& GetDevice() { return shell_.GetDevice(); }

  TestShell shell_;
};

}  // namespace orvane::testing
