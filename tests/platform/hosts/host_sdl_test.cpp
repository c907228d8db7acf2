// The window of the desktop, with the window library's driver that shows nothing: events are pushed into its
// queue and the device's answers read. No test waits for anything but an event.
#include "platform/host_sdl.h"

#include <SDL.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "platform/device.h"
#include "platform/host_sdl_input.h"
#include "platform/host_sdl_keys.h"

namespace orvane {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class SdlHostTest : public ::testing::Test {
 protected:
  SdlHostTest() { SDL_setenv("SDL_VIDEODRIVER", "dummy", 1); }

  void Open(double scale) {
    SdlHostOptions options;
    options.scale = scale;
    options.scaleChanged = [this](double changed) { scales_.push_back(changed); };
    std::string error;
    host_ = SdlHost::Open(std::move(options), error);
    ASSERT_NE(host_, nullptr) << error;
    DeviceOptions deviceOptions;
    deviceOptions.scale = host_->Scale();
    device_ = std::make_unique<Device>(*host_, deviceOptions);
    device_->RegisterWindowClass({u"Main",
                                  [this](WindowHandle window, std::uint32_t message, WParam w, LParam l) {
                                    return Procedure(window, message, w, l);
                                  },
                                  Rgb(1, 2, 3)});
    main_ = device_->CreateWindow({u"Main", u"Orvane", WS_VISIBLE, kClientArea, kNoWindow});
    device_->SetMainWindow(main_);
    device_->SetFocus(main_);
    log_.clear();
  }

  // Runs the host, and after each of its steps the next of these; ends behind the last.
  void Run(std::vector<std::function<void()>> actions) {
    std::size_t next = 0;
    host_->Run(*device_, [&] {
      if (next == actions.size()) return true;
      actions[next++]();
      return false;
    });
  }
  void Run(const std::vector<SDL_Event>& events) {
    std::vector<std::function<void()>> actions;
    for (const SDL_Event& event : events) actions.push_back([event] { Push(event); });
    Run(actions);
  }

  static void Push(SDL_Event event) { SDL_PushEvent(&event); }
  static SDL_Event Button(std::uint32_t type, int button, int x, int y) {
    SDL_Event event{};
    event.type = type;
    event.button.button = static_cast<Uint8>(button);
    event.button.x = x;
    event.button.y = y;
    return event;
  }
  static SDL_Event Motion(int x, int y) {
    SDL_Event event{};
    event.type = SDL_MOUSEMOTION;
    event.motion.x = x;
    event.motion.y = y;
    return event;
  }
  static SDL_Event Finger(std::uint32_t type, int finger, float x, float y) {
    SDL_Event event{};
    event.type = type;
    event.tfinger.fingerId = finger;
    event.tfinger.x = x;
    event.tfinger.y = y;
    return event;
  }
  static SDL_Event Key(std::uint32_t type, SDL_Keycode key, unsigned mod = 0) {
    SDL_Event event{};
    event.type = type;
    event.key.keysym.sym = key;
    event.key.keysym.mod = static_cast<Uint16>(mod);
    return event;
  }
  static SDL_Event Typed(const std::string& utf8) {
    SDL_Event event{};
    event.type = SDL_TEXTINPUT;
    SDL_strlcpy(event.text.text, utf8.c_str(), sizeof event.text.text);
    return event;
  }
  static SDL_Event WheelTurn(int x, int y, std::uint32_t direction = SDL_MOUSEWHEEL_NORMAL) {
    SDL_Event event{};
    event.type = SDL_MOUSEWHEEL;
    event.wheel.x = x;
    event.wheel.y = y;
    event.wheel.direction = direction;
    return event;
  }
  static SDL_Window* Window() { return SDL_GetWindowFromID(1); }
  static std::uint32_t Pixel(int x, int y) {
    const SDL_Surface* surface = SDL_GetWindowSurface(Window());
    const auto* row = static_cast<const unsigned char*>(surface->pixels) + y * surface->pitch;
    std::uint32_t pixel = 0;
    std::memcpy(&pixel, row + x * 4, sizeof pixel);
    return pixel & 0xFFFFFFu;
  }

  Result Procedure(WindowHandle window, std::uint32_t message, WParam w, LParam l) {
    const Point p = UnpackPoint(l);
    const std::string at = std::to_string(p.x) + " " + std::to_string(p.y);
    const std::string action = device_->IsKeyDown(VK_ACTION) ? " action" : "";
    switch (message) {
      case WM_LBUTTONDOWN:
        log_.push_back("down " + at + action);
        device_->SetCapture(window);
        return 0;
      case WM_MOUSEMOVE:
        log_.push_back("move " + at);
        return 0;
      case WM_LBUTTONUP:
        log_.push_back("up " + at);
        device_->ReleaseCapture();
        return 0;
      case WM_MOUSEWHEEL:
        log_.push_back("wheel " + std::to_string(WheelNotches(w)) + (WheelSideways(w) ? " sideways" : ""));
        return 0;
      case WM_KEYDOWN:
        log_.push_back("key " + std::to_string(w) + (device_->CurrentModifiers().shift ? " shift" : ""));
        return 0;
      case WM_CHAR:
        log_.push_back("char " + std::to_string(w));
        return 0;
      case WM_TIMER:
        log_.push_back("timer");
        return 0;
      case WM_CLOSE:
        log_.push_back("close");
        return 0;
      default:
        return device_->DefaultProcedure(window, message, w, l);
    }
  }

  std::unique_ptr<SdlHost> host_;
  std::unique_ptr<Device> device_;
  WindowHandle main_ = kNoWindow;
  std::vector<std::string> log_;
  std::vector<double> scales_;
};

TEST_F(SdlHostTest, SaysWhyItCannotOpenADisplay) {
  SDL_setenv("SDL_VIDEODRIVER", "nonsense", 1);
  std::string error;
  EXPECT_EQ(SdlHost::Open({}, error), nullptr);
  EXPECT_NE(error, "");
}

TEST_F(SdlHostTest, TakesNoScreenForADisplay) {
  SDL_setenv("SDL_VIDEODRIVER", "", 1);
  unsetenv("SDL_VIDEODRIVER");
  unsetenv("DISPLAY");
  unsetenv("WAYLAND_DISPLAY");
  std::string error;
  EXPECT_EQ(SdlHost::Open({}, error), nullptr);
  EXPECT_NE(error, "");
}

TEST_F(SdlHostTest, CompositesIntoTheWindowsMemory) {
  Open(2);
  EXPECT_EQ(host_->Scale(), 2);
  Run(std::vector<std::function<void()>>{});
  int width = 0;
  int height = 0;
  SDL_GetWindowSize(Window(), &width, &height);
  EXPECT_EQ(width, 480);
  EXPECT_EQ(height, 640);
  EXPECT_EQ(Pixel(0, 52), 0x010203u);
  EXPECT_EQ(Pixel(479, 587), 0x010203u);
  EXPECT_NE(Pixel(0, 51), 0x010203u);
  EXPECT_NE(Pixel(0, 588), 0x010203u);
}

TEST_F(SdlHostTest, TakesTheLeftButtonForThePen) {
  Open(2);
  Run({Motion(100, 100), Button(SDL_MOUSEBUTTONDOWN, SDL_BUTTON_LEFT, 21, 73), Motion(-3, 800),
       Button(SDL_MOUSEBUTTONUP, SDL_BUTTON_LEFT, 40, 92), Motion(5, 5)});
  EXPECT_THAT(log_, ElementsAre("down 10 10", "move -2 374", "up 20 20"));
  EXPECT_FALSE(device_->LastPressWasTouch());
}

TEST_F(SdlHostTest, TakesTheRightButtonForThePenWithTheActionKey) {
  Open(1);
  Run({Button(SDL_MOUSEBUTTONDOWN, SDL_BUTTON_RIGHT, 5, 36),
       Button(SDL_MOUSEBUTTONDOWN, SDL_BUTTON_LEFT, 9, 99), Button(SDL_MOUSEBUTTONUP, SDL_BUTTON_LEFT, 9, 99),
       Button(SDL_MOUSEBUTTONUP, SDL_BUTTON_RIGHT, 6, 36),
       Button(SDL_MOUSEBUTTONDOWN, SDL_BUTTON_MIDDLE, 6, 36)});
  EXPECT_THAT(log_, ElementsAre("down 5 10 action", "up 6 10"));
}

TEST_F(SdlHostTest, TakesTheFirstFingerForThePen) {
  Open(2);
  Run({Finger(SDL_FINGERDOWN, 7, 0.25f, 0.5f), Finger(SDL_FINGERDOWN, 8, 0.5f, 0.5f),
       Finger(SDL_FINGERMOTION, 8, 0.6f, 0.5f), Finger(SDL_FINGERMOTION, 7, 0.5f, 0.5f),
       Finger(SDL_FINGERUP, 8, 0.6f, 0.5f), Button(SDL_MOUSEBUTTONDOWN, SDL_BUTTON_LEFT, 9, 99),
       Finger(SDL_FINGERUP, 7, 0.5f, 0.5f)});
  EXPECT_THAT(log_, ElementsAre("down 60 134", "move 120 134", "up 120 134"));
  EXPECT_TRUE(device_->LastPressWasTouch());
}

TEST_F(SdlHostTest, TurnsWheelsBothWays) {
  Open(1);
  SDL_WarpMouseInWindow(Window(), 100, 100);
  Run({WheelTurn(0, 2), WheelTurn(0, 1, SDL_MOUSEWHEEL_FLIPPED), WheelTurn(3, 0)});
  SDL_SetModState(KMOD_LSHIFT);
  Run({WheelTurn(0, -1)});
  SDL_SetModState(KMOD_NONE);
  EXPECT_THAT(log_, ElementsAre("wheel 2", "wheel -1", "wheel -3 sideways", "wheel -1 sideways"));
}

TEST_F(SdlHostTest, PassesKeysAndText) {
  Open(1);
  Run({Key(SDL_KEYDOWN, SDLK_a), Typed("a"), Key(SDL_KEYUP, SDLK_a), Key(SDL_KEYDOWN, SDLK_LEFT, KMOD_LSHIFT),
       Key(SDL_KEYUP, SDLK_LEFT, KMOD_LSHIFT), Typed("\xCE\xB1\xF0\x9F\x98\x80"),
       Key(SDL_KEYDOWN, SDLK_MUTE)});
  EXPECT_THAT(log_, ElementsAre("key 65", "char 97", "key 37 shift", "char 945", "char 55357", "char 56832"));
}

TEST_F(SdlHostTest, LeavesTextOfCombinationsOut) {
  Open(1);
  SDL_SetModState(KMOD_LCTRL);
  Run({Typed("c")});
  SDL_SetModState(KMOD_LALT);
  Run({Typed("x")});
  EXPECT_THAT(log_, IsEmpty());
  SDL_SetModState(KMOD_RALT);  // types characters on many keyboards
  Run({Typed("@")});
  SDL_SetModState(KMOD_NONE);
  EXPECT_THAT(log_, ElementsAre("char 64"));
}

// The window without a screen never has the keyboard's focus, as one that is being left.
TEST_F(SdlHostTest, OpensNoMenuForAnAltThatSwitchesWindows) {
  Open(1);
  MenuItem about;
  about.id = 2;
  about.label = u"About";
  const BarButton menu{1, -1, ButtonStyle::kMenu, TBSTATE_ENABLED, u"App", Menu({about})};
  device_->Bars().Show(device_->Bars().Create(main_, 0, {menu}), true);
  SDL_HideWindow(Window());
  ASSERT_EQ(SDL_GetKeyboardFocus(), nullptr);
  Run({Key(SDL_KEYDOWN, SDLK_LALT, KMOD_LALT), Key(SDL_KEYUP, SDLK_LALT)});
  EXPECT_FALSE(device_->Popups().Open());
}

TEST_F(SdlHostTest, ClosesFromOutside) {
  Open(1);
  SDL_Event quit{};
  quit.type = SDL_QUIT;
  Run({quit});
  EXPECT_THAT(log_, ElementsAre("close"));
}

TEST_F(SdlHostTest, FollowsTheSizeOfItsWindow) {
  Open(2);
  Run({[] { SDL_SetWindowSize(Window(), 600, 700); }});
  EXPECT_DOUBLE_EQ(device_->Scale(), 700 / 320.0);
  EXPECT_THAT(scales_, ElementsAre(700 / 320.0));
  // 525 device pixels of screen with black at both sides.
  EXPECT_EQ(Pixel(36, 300), 0u);
  EXPECT_EQ(Pixel(37, 300), 0x010203u);
  EXPECT_EQ(Pixel(561, 300), 0x010203u);
  EXPECT_EQ(Pixel(562, 300), 0u);
  log_.clear();
  Run({Button(SDL_MOUSEBUTTONDOWN, SDL_BUTTON_LEFT, 36, 300),
       Button(SDL_MOUSEBUTTONUP, SDL_BUTTON_LEFT, 36, 300),
       Button(SDL_MOUSEBUTTONDOWN, SDL_BUTTON_LEFT, 37, 300),
       Button(SDL_MOUSEBUTTONUP, SDL_BUTTON_LEFT, 561, 300)});
  EXPECT_THAT(log_, ElementsAre("down 0 111", "up 239 111"));
}

TEST_F(SdlHostTest, ShowsTheMiddleOfTheScreenInAWindowThatIsTooSmall) {
  Open(1);
  SDL_SetWindowMinimumSize(Window(), 1, 1);
  Run({[] { SDL_SetWindowSize(Window(), 100, 120); }});
  EXPECT_EQ(device_->Scale(), 1);
  EXPECT_EQ(Pixel(50, 60), 0x010203u);
  log_.clear();
  Run({Button(SDL_MOUSEBUTTONDOWN, SDL_BUTTON_LEFT, 50, 60),
       Button(SDL_MOUSEBUTTONUP, SDL_BUTTON_LEFT, 50, 60)});
  EXPECT_THAT(log_, ElementsAre("down 120 134", "up 120 134"));
}

TEST_F(SdlHostTest, ChangesTheScaleByKey) {
  Open(1);
  Run({Key(SDL_KEYDOWN, SDLK_PLUS, KMOD_LCTRL), Key(SDL_KEYUP, SDLK_PLUS, KMOD_LCTRL)});
  EXPECT_EQ(device_->Scale(), 2);
  Run({Key(SDL_KEYDOWN, SDLK_KP_MINUS, KMOD_RCTRL), Key(SDL_KEYUP, SDLK_KP_MINUS, KMOD_RCTRL)});
  EXPECT_EQ(device_->Scale(), 1);
  EXPECT_THAT(scales_, ElementsAre(2, 1));
}

TEST_F(SdlHostTest, SharesTheClipboard) {
  Open(1);
  EXPECT_FALSE(host_->GetClipboard());
  EXPECT_TRUE(host_->SetClipboard(u"H\u2082O"));
  EXPECT_EQ(host_->GetClipboard(), u"H\u2082O");
}

TEST_F(SdlHostTest, WakesForATimerWithoutAnyEvent) {
  Open(1);
  device_->SetTimer(main_, 1, 1);
  host_->Run(*device_, [this] { return !log_.empty(); });
  EXPECT_THAT(log_, ElementsAre("timer"));
}

TEST_F(SdlHostTest, WakesToRaiseItsWindowFromAnotherThread) {
  Open(1);
  std::thread other;
  Run({[&] { other = std::thread([this] { host_->RaiseFromAnyThread(); }); }});
  other.join();
}

TEST_F(SdlHostTest, TakesNoHarmFromADamagedIcon) {
  const unsigned char damaged[] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n', 0, 0};
  SdlHostOptions options;
  options.iconPng = damaged;
  std::string error;
  host_ = SdlHost::Open(std::move(options), error);
  ASSERT_NE(host_, nullptr);
  Device device(*host_, {});
  host_->Run(device, [calls = 0]() mutable {
    SDL_Event event{};
    event.type = SDL_USEREVENT;
    SDL_PushEvent(&event);
    return ++calls == 2;
  });
}

TEST_F(SdlHostTest, ShowsAndHidesTheWaitCursor) {
  Open(1);
  host_->ShowWaitCursor(false);
  host_->ShowWaitCursor(true);
  host_->ShowWaitCursor(false);
  host_->SetTitle(u"Molecular mass \u03B1");
  EXPECT_STREQ(SDL_GetWindowTitle(Window()), "Molecular mass \xCE\xB1");
}

TEST(DesktopKeys, BecomeTheHandHelds) {
  EXPECT_EQ(KeyOfDesktop(SDLK_a, false, false), 'A');
  EXPECT_EQ(KeyOfDesktop(SDLK_z, false, false), 'Z');
  EXPECT_EQ(KeyOfDesktop(SDLK_0, false, false), '0');
  EXPECT_EQ(KeyOfDesktop(SDLK_9, false, false), '9');
  EXPECT_EQ(KeyOfDesktop(SDLK_F1, false, false), VK_F1);
  EXPECT_EQ(KeyOfDesktop(SDLK_F12, false, false), VK_F1 + 11);
  EXPECT_EQ(KeyOfDesktop(SDLK_F13, false, false), 0);
  EXPECT_EQ(KeyOfDesktop(SDLK_LEFT, false, false), VK_LEFT);
  EXPECT_EQ(KeyOfDesktop(SDLK_RIGHT, false, false), VK_RIGHT);
  EXPECT_EQ(KeyOfDesktop(SDLK_UP, false, false), VK_UP);
  EXPECT_EQ(KeyOfDesktop(SDLK_DOWN, false, false), VK_DOWN);
  EXPECT_EQ(KeyOfDesktop(SDLK_HOME, false, false), VK_HOME);
  EXPECT_EQ(KeyOfDesktop(SDLK_END, false, false), VK_END);
  EXPECT_EQ(KeyOfDesktop(SDLK_PAGEUP, false, false), VK_PRIOR);
  EXPECT_EQ(KeyOfDesktop(SDLK_PAGEDOWN, false, false), VK_NEXT);
  EXPECT_EQ(KeyOfDesktop(SDLK_BACKSPACE, false, false), VK_BACK);
  EXPECT_EQ(KeyOfDesktop(SDLK_DELETE, false, false), VK_DELETE);
  EXPECT_EQ(KeyOfDesktop(SDLK_RETURN, false, false), VK_RETURN);
  EXPECT_EQ(KeyOfDesktop(SDLK_KP_ENTER, false, false), VK_RETURN);
  EXPECT_EQ(KeyOfDesktop(SDLK_ESCAPE, false, false), VK_ESCAPE);
  EXPECT_EQ(KeyOfDesktop(SDLK_TAB, false, false), VK_TAB);
  EXPECT_EQ(KeyOfDesktop(SDLK_SPACE, false, false), VK_SPACE);
  EXPECT_EQ(KeyOfDesktop(SDLK_RSHIFT, false, false), VK_SHIFT);
  EXPECT_EQ(KeyOfDesktop(SDLK_RCTRL, false, false), VK_CONTROL);
  EXPECT_EQ(KeyOfDesktop(SDLK_LALT, false, false), VK_MENU);
  EXPECT_EQ(KeyOfDesktop(SDLK_RALT, false, false), 0);
  EXPECT_EQ(KeyOfDesktop(SDLK_COMMA, false, false), 0);
}

TEST(DesktopKeys, DependOnNumLockAndControl) {
  EXPECT_EQ(KeyOfDesktop(SDLK_KP_4, true, false), '4');
  EXPECT_EQ(KeyOfDesktop(SDLK_KP_4, false, false), VK_LEFT);
  EXPECT_EQ(KeyOfDesktop(SDLK_KP_9, false, false), VK_PRIOR);
  EXPECT_EQ(KeyOfDesktop(SDLK_KP_5, false, false), 0);
  EXPECT_EQ(KeyOfDesktop(SDLK_KP_PERIOD, false, false), VK_DELETE);
  EXPECT_EQ(KeyOfDesktop(SDLK_KP_PERIOD, true, false), 0);
  EXPECT_EQ(KeyOfDesktop(SDLK_EQUALS, false, false), 0);
  EXPECT_EQ(KeyOfDesktop(SDLK_EQUALS, false, true), VK_ADD);
  EXPECT_EQ(KeyOfDesktop(SDLK_KP_PLUS, false, false), VK_ADD);
  EXPECT_EQ(KeyOfDesktop(SDLK_MINUS, false, true), VK_SUBTRACT);
}

TEST(DesktopPlacement, TurnsPointerPositionsIntoScreenPoints) {
  const Placement placement{{600, 700}, 2.0, {75, 0}, 4.375};
  EXPECT_EQ(placement.ToLogical(37.5, 0), (Point{0, 0}));
  EXPECT_EQ(placement.ToLogical(37, 0), (Point{-1, 0}));
  EXPECT_EQ(placement.ToLogical(562, 699.9).x, 239);
  EXPECT_EQ(placement.ToLogical(562, 699.9).y, 319);
  EXPECT_EQ(placement.ToLogical(1e30, -1e30), (Point{10000, -10000}));
}

}  // namespace
}  // namespace orvane
