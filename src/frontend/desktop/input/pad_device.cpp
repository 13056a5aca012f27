#include <SDL.h>

#include <memory>
#include <optional>
#include <utility>

#include "src/frontend/shared/pad_source.h"

namespace orvane {
namespace {

constexpr std::pair<SDL_GameControllerButton, PadButton> kMeanings[] = {
    {SDL_CONTROLLER_BUTTON_DPAD_LEFT, PadButton::Left},
    {SDL_CONTROLLER_BUTTON_DPAD_UP, PadButton::Up},
    {SDL_CONTROLLER_BUTTON_DPAD_RIGHT, PadButton::Right},
    {SDL_CONTROLLER_BUTTON_DPAD_DOWN, PadButton::Down},
    {SDL_CONTROLLER_BUTTON_A, PadButton::Accept},
    {SDL_CONTROLLER_BUTTON_B, PadButton::Back},
    {SDL_CONTROLLER_BUTTON_START, PadButton::Menu},
    {SDL_CONTROLLER_BUTTON_LEFTSHOULDER, PadButton::Previous},
    {SDL_CONTROLLER_BUTTON_RIGHTSHOULDER, PadButton::Next},
};

double Axis(SDL_GameController* controller, SDL_GameControllerAxis axis) {
  return SDL_GameControllerGetAxis(controller, axis) / 32767.0;
}

// By SDL.
class PadDevice : public PadSource {
 public:
  PadDevice();
  ~PadDevice() override;
  PadDevice(const PadDevice&) = delete;
  PadDevice& operator=(const PadDevice&) = delete;

  std::optional<PadState> Read() override;

 private:
  void Find();

  bool started_;
  SDL_GameController* controller_ = nullptr;
  PadStick stick_;
};

PadDevice::PadDevice() {
  // The windows are not SDL's, so that for SDL the program is always in the background.
  SDL_SetHint(SDL_HINT_JOYSTICK_ALLOW_BACKGROUND_EVENTS, "1");
  SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  started_ = SDL_InitSubSystem(SDL_INIT_GAMECONTROLLER) == 0;
}

PadDevice::~PadDevice() {
  if (controller_ != nullptr) SDL_GameControllerClose(controller_);
  if (started_) SDL_QuitSubSystem(SDL_INIT_GAMECONTROLLER);
}

std::optional<PadState> PadDevice::Read() {
  if (!started_) return std::nullopt;
  SDL_GameControllerUpdate();
  SDL_FlushEvents(SDL_FIRSTEVENT, SDL_LASTEVENT);  // they would pile up unread
  Find();
  if (controller_ == nullptr) return std::nullopt;
  PadState state{};
  for (const auto& [button, meaning] : kMeanings) {
    if (SDL_GameControllerGetButton(controller_, button) != 0) {
      state[static_cast<size_t>(meaning)] = true;
    }
  }
  stick_.Add(Axis(controller_, SDL_CONTROLLER_AXIS_LEFTX),
             Axis(controller_, SDL_CONTROLLER_AXIS_LEFTY), state);
  return state;
}

void PadDevice::Find() {
  if (controller_ != nullptr && SDL_GameControllerGetAttached(controller_) == SDL_FALSE) {
    SDL_GameControllerClose(controller_);
    controller_ = nullptr;
  }
  for (int i = 0; controller_ == nullptr && i < SDL_NumJoysticks(); ++i) {
    if (SDL_IsGameController(i) != SDL_FALSE) controller_ = SDL_GameControllerOpen(i);
  }
}

}  // namespace

std::unique_ptr<PadSource> OpenPads() {
  return std::make_unique<PadDevice>();
}

}  // namespace orvane
