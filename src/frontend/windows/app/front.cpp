#include "src/frontend/windows/app/front.h"

#include <cmath>

#include "src/frontend/shared/raised.h"
#include "src/frontend/shared/texts/lettered_sheets.h"
#include "src/frontend/windows/windows/display.h"

namespace orvane {

namespace {

constexpr UINT kRingMessage = WM_APP + 2;
constexpr UINT kDisplayMessage = WM_APP + 3;

}  // namespace

Front::Front(Program& program, Translator& texts, std::optional<double> scale,
             const std::wstring& name)
    : program_(program),
      texts_(texts),
      first_(program.TheStage().Active()),
      scale_(scale),
      zoom_(MakeZoom(nullptr)),
      windows_(program.TheStage(), setting_),
      boxes_(texts,
             [this](BoxAnswer answer) { Send([answer](Program& game) { game.Answer(answer); }); }),
      messages_(name, [this](UINT message) { Take(message); }),
      alarm_(messages_.Handle(), kRingMessage),
      times_(program.TheStage()),
      keys_(*this, [this] { return KeysReachGame(); }),
      pad_(*this, messages_.Handle(), AroundPad()) {}

int Front::Run() {
  Follow();
  // Pads are looked for when the title stands: finding them may take longer than showing it.
  pad_.StartLater();
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    if (TakeKey(message)) continue;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return program_.ExitStatus();
}

void Front::Take(UINT message) {
  switch (message) {
    case kRingMessage:
      return Ring();
    case kCallMessage:
      return ComeToFront();
    case kDisplayMessage:
      return FitDisplay();
    case WM_TIMER:
      return pad_.Take();
    default:
      return;
  }
}

void Front::Send(const std::function<void(Program&)>& event) {
  // What controls report while they are being brought up to date is no event of the player's.
  if (following_ || held_until_) return;
  if (!program_.HasEnded()) ActOn(program_, event);
  Follow();
}

void Front::ChooseLanguage(const std::string& code) {
  texts_.Choose(code);
  language_changed_ = true;
  if (chosen_) chosen_(code);
  // While the game is held nothing changes on the screen.
  if (!following_ && !held_until_) Follow();
}

void Front::Follow() {
  if (IsHeld()) return;
  const Stage& stage = program_.TheStage();
  if (!program_.HasEnded()) {
    LetterSheets(stage, texts_);
    FollowWindows();
    LeaveSystemLoop();
    Arm();
    keys_.Follow();
    for (const Screen* screen : windows_.PaintNow()) {
      if (painted_) painted_(*screen);
    }
    if (stage.Active() != nullptr || stage.BoxStands()) return;
  }
  // The game has ended, or has left no window by which the player could end it.
  End();
}

void Front::FollowWindows() {
  const Raised following(following_);
  windows_.Follow(zoom_);
  const Stage& stage = program_.TheStage();
  if (std::exchange(language_changed_, false)) {
    windows_.Retranslate();
    boxes_.Retranslate();
  }
  const ScreenWindow* active = windows_.Active();
  boxes_.Follow(stage, active == nullptr ? nullptr : active->Handle(), [this, &stage] {
    windows_.FollowInput();
    if (!stage.BoxStands()) windows_.RaiseActive();
  });
}

// A menu closes, or the mouse lets go of a window, where another window or a box has come up.
void Front::LeaveSystemLoop() {
  const Stage& stage = program_.TheStage();
  if (!system_loops_ || (stage.Active() == looped_ && !stage.BoxStands())) return;
  EndMenu();
  ReleaseCapture();
}

double Front::Now() const {
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start_)
      .count();
}

bool Front::IsHeld() {
  if (held_until_) return true;
  const int milliseconds = program_.TheStage().HeldFor();
  if (milliseconds <= 0) return false;
  held_until_ = Now() + milliseconds;
  alarm_.Set(milliseconds);
  return true;
}

void Front::Arm() {
  if (const auto wait = times_.Wait(Now())) return alarm_.Set(*wait);
  alarm_.Stop();
}

void Front::Ring() {
  alarm_.Taken();
  if (program_.HasEnded() || following_) return;
  if (held_until_) {
    const double rest = *held_until_ - Now();
    if (rest > 0) return alarm_.Set(static_cast<int>(std::ceil(rest)));
    held_until_.reset();
    program_.EndHold();
    return Follow();
  }
  Timer* timer = times_.Take(Now());
  if (timer == nullptr) return Arm();
  Send([timer](Program& program) { program.Tick(*timer); });
}

void Front::End() {
  program_.End(0);
  alarm_.Stop();
  {
    const Raised following(following_);
    boxes_.Follow(program_.TheStage(), nullptr, [] {});
  }
  EndMenu();
  PostQuitMessage(0);
}

void Front::ComeToFront() const {
  const BoxWindow* box = boxes_.Front();
  const ScreenWindow* window = windows_.Active();
  if (window != nullptr && IsIconic(window->Handle()) != FALSE) {
    ShowWindow(window->Handle(), SW_RESTORE);
  }
  if (box != nullptr) return box->ComeToFront();
  if (window != nullptr) SetForegroundWindow(window->Handle());
}

void Front::Activated(Screen& screen) {
  if (held_until_ || following_ || program_.HasEnded()) return;
  const Stage& stage = program_.TheStage();
  if (stage.Active() == &screen || !screen.IsVisible() || stage.BoxStands()) return;
  Send([&screen](Program& program) { program.Activate(screen); });
}

void Front::ProgramActivated(bool active) {
  if (!active) return keys_.Forget();
  // What another program got was not seen here, so the keyboard itself is asked.
  keys_.Look();
}

void Front::SystemLoops(bool begins) {
  system_loops_ = begins;
  looped_ = program_.TheStage().Active();
  keys_.Follow();
  if (begins) return;
  keys_.Look();
  if (display_changed_) PostMessageW(messages_.Handle(), kDisplayMessage, 0, 0);
}

bool Front::KeysReachGame() const {
  const Stage& stage = program_.TheStage();
  const ScreenWindow* window = windows_.Of(first_);
  return window != nullptr && stage.Active() == first_ && stage.TakesInput(*first_) &&
         GetActiveWindow() == window->Handle() && !system_loops_;
}

Zoom Front::MakeZoom(HWND window) const {
  return Zoom(FactsOf(window), scale_, InsidesOf(program_.TheStage()));
}

void Front::DisplayChanged() {
  // While a window is dragged it may go to and fro; and what changes its size comes later.
  if (std::exchange(display_changed_, true)) return;
  PostMessageW(messages_.Handle(), kDisplayMessage, 0, 0);
}

void Front::DotsChanged() {
  dots_changed_ = true;
  DisplayChanged();
}

void Front::FitDisplay() {
  if (!display_changed_ || system_loops_ || program_.HasEnded()) return;
  display_changed_ = false;
  const bool dots_changed = std::exchange(dots_changed_, false);
  const ScreenWindow* active = windows_.Active();
  Zoom fitting = MakeZoom(active == nullptr ? nullptr : active->Handle());
  if (!IsSameScreen(fitting.TheScreen(), zoom_.TheScreen())) {
    fitting.SetFullScreen(zoom_.IsFullScreen());
    zoom_ = fitting;
  } else if (!dots_changed) {
    return;
  }
  windows_.LayOutAnew();
  if (!held_until_) Follow();
}

void Front::WantsFullScreen() {
  SetFullScreen(true);
}

void Front::SetFullScreen(bool full_screen) {
  zoom_.SetFullScreen(full_screen);
  if (!held_until_ && !program_.HasEnded()) Follow();
}

bool Front::TakeKey(const MSG& message) {
  if (message.message < WM_KEYFIRST || message.message > WM_KEYLAST) return false;
  if (const BoxWindow* box = boxes_.Front()) return box->TakeKey(message);
  if (TakeZoomKey(message)) return true;
  ScreenWindow* window = windows_.Around(message.hwnd);
  return window != nullptr && keys_.Take(message, *window);
}

bool Front::TakeZoomKey(const MSG& message) {
  constexpr LPARAM was_down = 1 << 30;
  if (message.message != WM_KEYDOWN) return false;
  const bool control = GetKeyState(VK_CONTROL) < 0;
  switch (message.wParam) {
    case VK_F11:
      if ((message.lParam & was_down) == 0) SetFullScreen(!zoom_.IsFullScreen());
      return true;
    case VK_OEM_PLUS:
    case VK_ADD:
      if (!control) return false;
      zoom_.Enlarge();
      break;
    case VK_OEM_MINUS:
    case VK_SUBTRACT:
      if (!control) return false;
      zoom_.Reduce();
      break;
    case '0':
    case VK_NUMPAD0:
      if (!control) return false;
      zoom_.Reset();
      break;
    default:
      return false;
  }
  if (!held_until_) Follow();
  return true;
}

void Front::Type(WPARAM key) {
  const HWND target = GetFocus();
  if (target == nullptr) return;
  if (system_loops_) {
    // It takes its keys from the queue.
    PostMessageW(target, WM_KEYDOWN, key, 0);
    return;
  }
  if (const BoxWindow* box = boxes_.Front()) {
    MSG message{};
    message.hwnd = target;
    message.message = WM_KEYDOWN;
    message.wParam = key;
    box->TakeKey(message);
    return;
  }
  ScreenWindow* window = windows_.Around(target);
  if (window == nullptr || keys_.Press(key, *window)) return;
  SendMessageW(target, WM_KEYDOWN, key, 0);
  if (IsWindow(target) != FALSE) SendMessageW(target, WM_KEYUP, key, 0);
}

PadSurroundings Front::AroundPad() {
  return {[this] { return KeysReachGame(); }, [this] { return windows_.Around(GetActiveWindow()); },
          [this](WPARAM key) { Type(key); }, [this] { return system_loops_; }};
}

}  // namespace orvane
