#include <SDL.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <future>
#include <mutex>
#include <string_view>
#include <thread>
#include <utility>

#include "src/sound/output.h"
#include "src/sound/sdl/hush.h"

namespace orvane {
namespace {

// 6 ms: an effect is heard with its picture, and what it waits for twice is still short.
constexpr Uint16 kBufferFrames = 256;
constexpr std::chrono::seconds kLookAround(1);
constexpr std::size_t kFrameBytes = 2 * sizeof(float);

// All calls that may open or close devices come from one thread, as some systems want it.
class DeviceOutput : public Output {
 public:
  DeviceOutput(int rate, PullFunction pull)
      : rate_(rate), pull_(std::move(pull)), thread_([this] { Run(); }) {
    opened_.get_future().wait();
  }

  ~DeviceOutput() override {
    {
      const std::scoped_lock lock(mutex_);
      stop_ = true;
    }
    wake_.notify_all();
    thread_.join();
  }

  bool Open() const { return device_ != 0; }
  // A buffer is filled with what was asked for while the one before it was filled and played, and
  // waits for the end of the one that plays.
  double Delay() const override { return 2 * buffer_seconds_; }

 private:
  void Run() {
    // The desktop keeps its own signal handlers, and sound is no reason to keep a screen awake.
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    SDL_SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, "Orvane");
    HushSound();
    const bool started = SDL_InitSubSystem(SDL_INIT_AUDIO) == 0;
    if (started && std::string_view(SDL_GetCurrentAudioDriver()) != "dummy") {
      device_ = OpenDefault();
      SDL_PauseAudioDevice(device_, 0);
    }
    opened_.set_value();
    if (device_ != 0) Watch();
    SDL_CloseAudioDevice(device_);
    if (started) SDL_QuitSubSystem(SDL_INIT_AUDIO);
    SDL_TLSCleanup();  // as SDL does it in threads of its own
  }

  SDL_AudioDeviceID OpenDefault() {
    SDL_AudioSpec wanted{};
    wanted.freq = rate_;
    wanted.format = AUDIO_F32SYS;
    wanted.channels = 2;
    wanted.samples = kBufferFrames;
    wanted.callback = &DeviceOutput::Fill;
    wanted.userdata = this;
    SDL_AudioSpec got{};
    const SDL_AudioDeviceID device = SDL_OpenAudioDevice(nullptr, 0, &wanted, &got, 0);
    if (device != 0) buffer_seconds_ = static_cast<double>(got.samples) / rate_;
    return device;
  }

  // A device that has been pulled out goes on asking for frames, and plays them into nothing, until
  // there is one again.
  void Watch() {
    std::unique_lock lock(mutex_);
    while (!wake_.wait_for(lock, kLookAround, [this] { return stop_; })) {
      if (SDL_GetAudioDeviceStatus(device_) != SDL_AUDIO_STOPPED) continue;
      const SDL_AudioDeviceID found = OpenDefault();
      if (found == 0) continue;
      SDL_CloseAudioDevice(device_.exchange(found));
      SDL_PauseAudioDevice(device_, 0);
    }
  }

  static void SDLCALL Fill(void* self, Uint8* bytes, int size) {
    auto& output = *static_cast<DeviceOutput*>(self);
    // Commands keep their distances: the time since the last call is laid out over this buffer.
    const auto from = std::exchange(output.called_, std::chrono::steady_clock::now());
    output.pull_(reinterpret_cast<float*>(bytes), static_cast<std::size_t>(size) / kFrameBytes,
                 from);
  }

  const int rate_;
  PullFunction pull_;
  std::chrono::steady_clock::time_point called_ = std::chrono::steady_clock::now();
  std::atomic<double> buffer_seconds_ = 0;
  std::atomic<SDL_AudioDeviceID> device_ = 0;
  std::promise<void> opened_;
  std::mutex mutex_;
  std::condition_variable wake_;
  bool stop_ = false;
  std::thread thread_;  // last: it runs as soon as it is made
};

}  // namespace

std::unique_ptr<Output> OpenDevice(int rate, PullFunction pull) {
  auto output = std::make_unique<DeviceOutput>(rate, std::move(pull));
  if (!output->Open()) return nullptr;
  return output;
}

}  // namespace orvane
