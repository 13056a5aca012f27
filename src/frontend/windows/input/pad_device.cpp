#include <memory>
#include <optional>
#include <utility>

#include "src/frontend/shared/pad_source.h"
#include "src/frontend/windows/system/windows_api.h"

// After the system's first header.
#include <xinput.h>

namespace orvane {
namespace {

constexpr std::pair<WORD, PadButton> kMeanings[] = {
    {XINPUT_GAMEPAD_DPAD_LEFT, PadButton::Left},
    {XINPUT_GAMEPAD_DPAD_UP, PadButton::Up},
    {XINPUT_GAMEPAD_DPAD_RIGHT, PadButton::Right},
    {XINPUT_GAMEPAD_DPAD_DOWN, PadButton::Down},
    {XINPUT_GAMEPAD_A, PadButton::Accept},
    {XINPUT_GAMEPAD_B, PadButton::Back},
    {XINPUT_GAMEPAD_START, PadButton::Menu},
    {XINPUT_GAMEPAD_LEFT_SHOULDER, PadButton::Previous},
    {XINPUT_GAMEPAD_RIGHT_SHOULDER, PadButton::Next},
};

constexpr DWORD kPads = 4;

using GetState = DWORD(WINAPI*)(DWORD, XINPUT_STATE*);

// By the system's library for pads, which is looked for when this is made: not every system has it.
class PadDevice : public PadSource {
 public:
  PadDevice();

  std::optional<PadState> Read() override;

 private:
  FARPROC get_state_ = nullptr;
  DWORD pad_ = 0;  // of those that the library counts
  PadStick stick_;
};

PadDevice::PadDevice() {
  // It stays to the program's end: a thread of its own goes on in it for a moment after the last
  // call.
  HMODULE library = nullptr;
  for (const wchar_t* name : {L"xinput1_4.dll", L"xinput9_1_0.dll"}) {
    library = LoadLibraryExW(name, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    if (library != nullptr) break;
  }
  if (library != nullptr) get_state_ = GetProcAddress(library, "XInputGetState");
}

std::optional<PadState> PadDevice::Read() {
  constexpr double furthest = 32767;
  if (get_state_ == nullptr) return std::nullopt;
  const auto get_state = reinterpret_cast<GetState>(reinterpret_cast<void*>(get_state_));
  XINPUT_STATE seen{};
  for (DWORD tries = 0; get_state(pad_, &seen) != ERROR_SUCCESS; ++tries) {
    if (tries == kPads) return std::nullopt;
    pad_ = (pad_ + 1) % kPads;
  }
  PadState state{};
  for (const auto& [button, meaning] : kMeanings) {
    if ((seen.Gamepad.wButtons & button) != 0) state[static_cast<size_t>(meaning)] = true;
  }
  // Up is positive there.
  stick_.Add(seen.Gamepad.sThumbLX / furthest, -seen.Gamepad.sThumbLY / furthest, state);
  return state;
}

}  // namespace

std::unique_ptr<PadSource> OpenPads() {
  return std::make_unique<PadDevice>();
}

}  // namespace orvane
