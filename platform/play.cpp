#include "platform/play.h"

#include <iterator>
#include <ostream>

#include "platform/play_expect.h"
#include "platform/play_report.h"
#include "platform/play_script.h"
#include "platform/play_session.h"

namespace orvane {
namespace {

constexpr int kStatusFailed = 3;
constexpr int kStatusWrongScript = 4;

// More dialogs than ever stand above one another.
constexpr int kMostDialogs = 100;

std::string Quoted(TextView text) { return "\"" + ToUtf8(text) + "\""; }

// The hands at the hand-held: one operation for each verb.
class Player {
 public:
  Player(const PlayOptions& options, std::ostream& out, std::ostream& errors)
      : options_(options), out_(out), session_(options, errors) {}

  int Run(const std::vector<PlayCommand>& commands);

 private:
  bool Running() const { return session_.Running(); }
  void Settle() { session_.Settle(); }
  Device& TheDevice() { return session_.TheDevice(); }
  void Fail(const std::string& message) { session_.Fail(message); }

  void Perform(const PlayCommand& command);
  void PerformInput(const PlayCommand& command);
  void PerformPress(const PlayCommand& command);
  void PerformOutside(const PlayCommand& command);

  bool PenDown(Point point);  // false when the pen is down already
  void PenMove(Point point);
  void PenUp(Point point);
  void Drag(const std::vector<int>& numbers);
  void Press(const KeyStroke& stroke);
  void Type(TextView text);

  bool InputReachesWindows();
  void PressButton(int id);
  void ChooseFromMenu(TextView menu, TextView entry);
  void Choose(TextView label);
  void Dismiss();
  void DismissAll();

  const PlayOptions& options_;
  std::ostream& out_;
  PlaySession session_;
  bool penIsDown_ = false;
  Point pen_;
};

int Player::Run(const std::vector<PlayCommand>& commands) {
  std::size_t next = 0;
  if (!commands.empty() && commands[0].verb == Verb::kTrace) {
    session_.SetLine(commands[0].line);
    session_.BeginTrace(commands[0].file);
    next = 1;
  }
  if (!session_.Start()) return kStatusFailed;
  for (; next < commands.size() && session_.Started() && !session_.Stuck(); ++next) {
    session_.SetLine(commands[next].line);
    Perform(commands[next]);
    if (options_.afterVerb && Running()) options_.afterVerb(session_.Program(), commands[next].line);
  }
  if (!session_.Started()) return kStatusFailed;
  session_.End();
  return session_.Failed() ? kStatusFailed : session_.Program().Ended().value_or(kStatusFailed);
}

void Player::Perform(const PlayCommand& command) {
  PlayedProgram& program = session_.Program();
  if (command.verb >= Verb::kExpectTool) {
    const std::string failure = CheckExpectation(command, program, session_.Host());
    if (!failure.empty()) Fail(failure);
  } else if (command.verb == Verb::kReport) {
    out_ << ReportLine(program) << '\n' << std::flush;
  } else if (command.verb == Verb::kRestart) {
    penIsDown_ = false;
    session_.Restart();
  } else if (program.Ended()) {
    Fail("the program has ended: only report, expect and restart may follow");
  } else {
    PerformInput(command);
  }
}

void Player::PerformInput(const PlayCommand& command) {
  const std::vector<int>& numbers = command.numbers;
  switch (command.verb) {
    case Verb::kTap:
      if (PenDown({numbers[0], numbers[1]})) PenUp({numbers[0], numbers[1]});
      return;
    case Verb::kPress:
      PenDown({numbers[0], numbers[1]});
      return;
    case Verb::kMove:
      return PenMove({numbers[0], numbers[1]});
    case Verb::kRelease:
      return PenUp(pen_);
    case Verb::kDrag:
      return Drag(numbers);
    case Verb::kWheel:
      TheDevice().Wheel({numbers[0], numbers[1]}, numbers[2], command.sideways);
      return Settle();
    case Verb::kKey:
      return Press(command.stroke);
    case Verb::kHoldAction:
    case Verb::kLetGoAction:
      TheDevice().HoldActionKey(command.verb == Verb::kHoldAction);
      return Settle();
    case Verb::kType:
      return Type(command.texts[0]);
    default:
      return PerformPress(command);
  }
}

void Player::PerformPress(const PlayCommand& command) {
  switch (command.verb) {
    case Verb::kMenu:
      return ChooseFromMenu(command.texts[0], command.texts[1]);
    case Verb::kButton:
      return PressButton(command.numbers[0]);
    case Verb::kChoose:
      return Choose(command.texts[0]);
    case Verb::kPanel:
      if (!InputReachesWindows()) return;
      if (!TheDevice().Bars().PressPanelButton()) Fail("the bar has no input-panel button");
      return Settle();
    case Verb::kOk:
      return Dismiss();
    case Verb::kDismissAll:
      return DismissAll();
    default:
      return PerformOutside(command);
  }
}

void Player::PerformOutside(const PlayCommand& command) {
  switch (command.verb) {
    case Verb::kClose:
      TheDevice().CloseFromOutside();
      break;
    case Verb::kClipboard:
      session_.Host().SetClipboard(command.texts[0]);
      break;
    case Verb::kWait:
      return session_.Wait(command.numbers[0]);
    case Verb::kShot:
      return session_.Shoot(command.file);
    case Verb::kTrace:
      return session_.BeginTrace(command.file);
    default:
      break;
  }
  Settle();
}

bool Player::PenDown(Point point) {
  if (penIsDown_) {
    Fail("the pen is down already");
    return false;
  }
  penIsDown_ = true;
  pen_ = point;
  TheDevice().PenDown(point, PointerKind::kTouch);
  Settle();
  return true;
}

void Player::PenMove(Point point) {
  if (!penIsDown_) return Fail("the pen is not down: it has no hover");
  pen_ = point;
  if (!Running()) return;
  TheDevice().PenMove(point);
  Settle();
}

void Player::PenUp(Point point) {
  if (!penIsDown_) return Fail("the pen is not down");
  penIsDown_ = false;
  if (!Running()) return;
  TheDevice().PenUp(point);
  Settle();
}

void Player::Drag(const std::vector<int>& numbers) {
  const Point from{numbers[0], numbers[1]};
  const Point to{numbers[2], numbers[3]};
  const int steps = numbers[4];
  if (!PenDown(from)) return;
  // The division cuts towards zero: a drag to the left mirrors one to the right.
  for (int k = 1; k <= steps; ++k) {
    PenMove({from.x + k * (to.x - from.x) / steps, from.y + k * (to.y - from.y) / steps});
  }
  PenUp(to);
}

// The modifier keys go down first and up last, as on a keyboard.
void Player::Press(const KeyStroke& stroke) {
  struct Held {
    bool wanted;
    int key;
    bool Modifiers::*flag;
  };
  const Held held[] = {{stroke.modifiers.shift, VK_SHIFT, &Modifiers::shift},
                       {stroke.modifiers.control, VK_CONTROL, &Modifiers::control},
                       {stroke.modifiers.alt, VK_MENU, &Modifiers::alt}};
  Modifiers now;
  const auto send = [this](auto&& input) {
    if (!Running()) return;
    input(TheDevice());
    Settle();
  };
  for (const Held& modifier : held) {
    if (!modifier.wanted) continue;
    now.*modifier.flag = true;
    send([&](Device& device) { device.KeyDown(modifier.key, now); });
  }
  send([&](Device& device) {
    device.KeyDown(stroke.key, now);
    if (stroke.character != 0) device.Character(stroke.character);
  });
  send([&](Device& device) { device.KeyUp(stroke.key, now); });
  for (auto it = std::rbegin(held); it != std::rend(held); ++it) {
    if (!it->wanted) continue;
    now.*it->flag = false;
    send([&](Device& device) { device.KeyUp(it->key, now); });
  }
}

void Player::Type(TextView text) {
  for (const Char c : text) {
    if (!Running()) return;
    if (const std::optional<KeyStroke> stroke = KeyOfControlCharacter(c)) {
      Press(*stroke);
    } else {
      TheDevice().Character(c);
      Settle();
    }
  }
}

// Boxes and modal dialogs keep the pen from the bar; an open menu goes away at the first touch beside it.
bool Player::InputReachesWindows() {
  Device& device = TheDevice();
  if (device.Boxes().Open()) {
    Fail("a message box is open, it says " + Quoted(device.Boxes().Front().text));
    return false;
  }
  if (device.DialogBoxes().ModalOpen()) {
    Fail("the dialog \"" + device.DialogBoxes().FrontName() + "\" is open");
    return false;
  }
  if (device.Popups().Open()) {
    device.Popups().Close();
    Settle();
  }
  return Running();
}

void Player::PressButton(int id) {
  if (!InputReachesWindows()) return;
  if (!TheDevice().Bars().Press(id)) Fail("the bar has no enabled button " + std::to_string(id));
  Settle();
}

void Player::ChooseFromMenu(TextView menu, TextView entry) {
  if (!InputReachesWindows()) return;
  const std::vector<BarButtonPlace> places = TheDevice().Bars().Places();
  std::size_t at = 0;
  while (at < places.size() &&
         (places[at].button.style != ButtonStyle::kMenu || places[at].button.label != menu)) {
    ++at;
  }
  if (at == places.size()) return Fail("the bar has no menu " + Quoted(menu));
  const bool enabled = (places[at].button.state & TBSTATE_ENABLED) != 0;
  if (!enabled || !TheDevice().Bars().OpenMenu(static_cast<int>(at))) {
    return Fail("the menu " + Quoted(menu) + " cannot be opened");
  }
  Settle();
  if (!Running()) return;
  Choose(entry);
  if (Running() && TheDevice().Popups().Open()) {  // Refused: the menu does not stay.
    TheDevice().Popups().Close();
    Settle();
  }
}

void Player::Choose(TextView label) {
  Device& device = TheDevice();
  if (device.Boxes().Open()) {
    return Fail("a message box is open, it says " + Quoted(device.Boxes().Front().text));
  }
  if (!device.Popups().Open()) return Fail("no pop-up menu is open");
  const bool present = FindEntry(device.Popups().Current().Items(), label) != nullptr;
  if (!device.Popups().ChooseLabel(label)) {
    Fail(present ? "the entry " + Quoted(label) + " is disabled" : "the menu has no entry " + Quoted(label));
  }
  Settle();
}

void Player::Dismiss() {
  Device& device = TheDevice();
  if (device.Boxes().Open()) {
    device.Boxes().Dismiss();
  } else if (!device.DialogBoxes().DismissFront()) {
    Fail("no message box and no dialog is open");
  }
  Settle();
}

// With nothing to dismiss there is nothing to do: a script may clear whatever a start has brought up.
void Player::DismissAll() {
  TheDevice().Boxes().DismissAll();
  Settle();
  for (int count = 0; count < kMostDialogs && Running() && TheDevice().DialogBoxes().DismissFront();
       ++count) {
    Settle();
  }
}

}  // namespace

int Play(std::string_view script, const PlayOptions& options, std::ostream& out, std::ostream& errors) {
  const PlayScript parsed = ParsePlayScript(script);
  for (const ScriptError& error : parsed.errors) {
    errors << "line " << error.line << ": " << error.message << '\n';
  }
  if (!parsed.errors.empty()) return kStatusWrongScript;
  return Player(options, out, errors).Run(parsed.commands);
}

}  // namespace orvane
