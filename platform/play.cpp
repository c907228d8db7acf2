#include "platform/play.h"

#include <filesystem>
#include <ostream>

#include "platform/host_headless.h"
#include "platform/play_expect.h"
#include "platform/play_report.h"
#include "platform/play_script.h"
#include "platform/play_trace.h"

namespace orvane {
namespace {

// A program at rest needs a handful of steps after each input; one that takes this many never rests.
constexpr int kMostSteps = 10000;

constexpr int kStatusNotStarted = 2;
constexpr int kStatusFailed = 3;
constexpr int kStatusWrongScript = 4;

std::string Quoted(TextView text) { return "\"" + ToUtf8(text) + "\""; }

class Player {
 public:
  Player(const PlayOptions& options, std::ostream& out, std::ostream& errors)
      : options_(options), out_(out), errors_(errors), host_(options.scale) {}

  int Run(const std::vector<PlayCommand>& commands);

 private:
  bool StartProgram();
  void EndProgram();
  void Settle();
  bool Running() const { return program_ && !program_->Ended() && !stuck_; }
  Device& TheDevice() { return program_->GetDevice(); }
  void Fail(const std::string& message);

  void Perform(const PlayCommand& command);
  void PerformInput(const PlayCommand& command);
  void PerformPress(const PlayCommand& command);
  void PerformOutside(const PlayCommand& command);

  void PenDown(Point point);
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

  void Wait(int milliseconds);
  void Shoot(const std::string& file);
  void BeginTrace(const std::string& file);
  std::string OutPath(const std::string& file) const;

  const PlayOptions& options_;
  std::ostream& out_;
  std::ostream& errors_;
  HeadlessHost host_;
  JsonTrace trace_;
  std::unique_ptr<PlayedProgram> program_;
  std::optional<std::int64_t> nextTimer_;
  bool penIsDown_ = false;
  Point pen_;
  int line_ = 0;
  bool failed_ = false;
  bool stuck_ = false;  // the program never came to rest: nothing more can be played
};

int Player::Run(const std::vector<PlayCommand>& commands) {
  std::size_t next = 0;
  if (!commands.empty() && commands[0].verb == Verb::kTrace) {
    line_ = commands[0].line;
    BeginTrace(commands[0].file);
    next = 1;
  }
  if (!StartProgram()) return kStatusNotStarted;
  for (; next < commands.size() && !stuck_; ++next) {
    line_ = commands[next].line;
    Perform(commands[next]);
    if (options_.afterVerb && Running()) options_.afterVerb(*program_, line_);
  }
  if (program_) EndProgram();
  if (failed_ || !program_) return kStatusFailed;
  return program_->Ended().value_or(kStatusFailed);
}

bool Player::StartProgram() {
  DeviceOptions deviceOptions;
  deviceOptions.scale = options_.scale;
  deviceOptions.recordRuns = true;
  deviceOptions.panelMode = options_.panelMode;
  deviceOptions.fontFolder = options_.fontFolder;
  deviceOptions.trace = &trace_;
  penIsDown_ = false;
  nextTimer_.reset();
  program_ = options_.start(host_, deviceOptions);
  if (!program_) {
    errors_ << "the program could not be started\n";
    return false;
  }
  Settle();
  return true;
}

// Ends the program as its own Exit does.
void Player::EndProgram() {
  if (program_->Ended()) return;
  TheDevice().PostQuit(0);
  for (int step = 0; step < kMostSteps && !program_->Ended(); ++step) {
    TheDevice().Step(host_.Now());
    program_->AfterStep();
  }
  if (!program_->Ended()) {
    Fail("the program does not end");
    stuck_ = true;
  }
}

void Player::Settle() {
  trace_.SetTime(host_.Now());
  for (int step = 0; step < kMostSteps; ++step) {
    if (!Running()) return;
    nextTimer_ = TheDevice().Step(host_.Now());
    program_->AfterStep();
    if (!Running()) return;
    if (!host_.ApplyScale(TheDevice()) && TheDevice().Quiescent()) return;
  }
  Fail("the program does not come to rest");
  stuck_ = true;
}

void Player::Fail(const std::string& message) {
  errors_ << "line " << line_ << ": " << message << '\n';
  failed_ = true;
}

void Player::Perform(const PlayCommand& command) {
  if (command.verb >= Verb::kExpectTool) {
    const std::string failure = CheckExpectation(command, *program_, host_);
    if (!failure.empty()) Fail(failure);
  } else if (command.verb == Verb::kReport) {
    out_ << ReportLine(*program_) << '\n' << std::flush;
  } else if (command.verb == Verb::kRestart) {
    EndProgram();
    program_.reset();
    if (!StartProgram()) stuck_ = true;
  } else if (program_->Ended()) {
    Fail("the program has ended: only report, expect and restart may follow");
  } else {
    PerformInput(command);
  }
}

void Player::PerformInput(const PlayCommand& command) {
  const std::vector<int>& numbers = command.numbers;
  switch (command.verb) {
    case Verb::kTap:
      PenDown({numbers[0], numbers[1]});
      return PenUp({numbers[0], numbers[1]});
    case Verb::kPress:
      return PenDown({numbers[0], numbers[1]});
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
      host_.SetClipboard(command.texts[0]);
      break;
    case Verb::kWait:
      return Wait(command.numbers[0]);
    case Verb::kShot:
      return Shoot(command.file);
    case Verb::kTrace:
      return BeginTrace(command.file);
    default:
      break;
  }
  Settle();
}

void Player::PenDown(Point point) {
  if (penIsDown_) return Fail("the pen is down already");
  penIsDown_ = true;
  pen_ = point;
  TheDevice().PenDown(point, PointerKind::kTouch);
  Settle();
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
  if (penIsDown_) return Fail("the pen is down already");
  const Point from{numbers[0], numbers[1]};
  const Point to{numbers[2], numbers[3]};
  const int steps = numbers[4];
  PenDown(from);
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
  for (int count = 0; count < kMostSteps && Running() && TheDevice().DialogBoxes().DismissFront(); ++count) {
    Settle();
  }
}

// Moves the clock from timer to timer, so that each fires at its own time and in order.
void Player::Wait(int milliseconds) {
  const std::int64_t end = host_.Now() + milliseconds;
  Settle();
  while (Running() && nextTimer_ && *nextTimer_ <= end && host_.Now() < end) {
    host_.SetNow(std::max(*nextTimer_, host_.Now() + 1));
    Settle();
  }
  host_.SetNow(end);
  Settle();
}

std::string Player::OutPath(const std::string& file) const {
  const std::filesystem::path path = std::filesystem::path(options_.outFolder) / file;
  std::error_code ignored;  // A folder that cannot be made shows when the file is opened.
  std::filesystem::create_directories(path.parent_path(), ignored);
  return path.string();
}

void Player::Shoot(const std::string& file) {
  const std::string path = OutPath(file);
  if (!host_.WritePng(path)) Fail("cannot write " + path);
}

void Player::BeginTrace(const std::string& file) {
  const std::string path = OutPath(file);
  if (!trace_.Open(path)) Fail("cannot write " + path);
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
