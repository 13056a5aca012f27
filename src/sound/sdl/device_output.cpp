#include <SDL.h>

#include <chrono>
#include <string_view>
#include <utility>

#include "src/sound/output.h"
#include "src/sound/sdl/hush.h"

namespace orvane {
namespace {

// 6 ms: an effect is heard with its picture, and what it waits for twice is still short.
constexpr Uint16 kBufferFrames = 256;
constexpr std::size_t kFrameBytes = 2 * sizeof(float);

class DeviceOutput : public Output {
 public:
  DeviceOutput(int rate, PullFunction pull) : pull_(std::move(pull)) {
    // The desktop keeps its own signal handlers, and sound is no reason to keep a screen awake.
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    SDL_SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, "Orvane");
    HushSound();
    started_ = SDL_InitSubSystem(SDL_INIT_AUDIO) == 0;
    if (!started_ || std::string_view(SDL_GetCurrentAudioDriver()) == "dummy") return;
    SDL_AudioSpec wanted{};
    wanted.freq = rate;
    wanted.format = AUDIO_F32SYS;
    wanted.channels = 2;
    wanted.samples = kBufferFrames;
    wanted.callback = &DeviceOutput::Fill;
    wanted.userdata = this;
    SDL_AudioSpec got{};
    device_ = SDL_OpenAudioDevice(nullptr, 0, &wanted, &got, 0);
    if (device_ == 0) return;
    buffer_seconds_ = static_cast<double>(got.samples) / rate;
    SDL_PauseAudioDevice(device_, 0);
  }

  ~DeviceOutput() override {
    if (device_ != 0) SDL_CloseAudioDevice(device_);
    if (started_) SDL_QuitSubSystem(SDL_INIT_AUDIO);
  }

  bool Open() const { return device_ != 0; }
  // A buffer is filled with what was asked for while the one before it was filled and played, and
  // waits for the end of the one that plays.
  double Delay() const override { return 2 * buffer_seconds_; }

 private:
  static void SDLCALL Fill(void* self, Uint8* bytes, int size) {
    auto& output = *static_cast<DeviceOutput*>(self);
    // Commands keep their distances: the time since the last call is laid out over this buffer.
    const auto from = std::exchange(output.called_, std::chrono::steady_clock::now());
    output.pull_(reinterpret_cast<float*>(bytes), static_cast<std::size_t>(size) / kFrameBytes,
                 from);
  }

  PullFunction pull_;
  std::chrono::steady_clock::time_point called_ = std::chrono::steady_clock::now();
  double buffer_seconds_ = 0;
  bool started_ = false;
  SDL_AudioDeviceID device_ = 0;
};

}  // namespace

std::unique_ptr<Output> OpenDevice(int rate, PullFunction pull) {
  auto output = std::make_unique<DeviceOutput>(rate, std::move(pull));
  if (!output->Open()) return nullptr;
  return output;
}

}  // namespace orvane
