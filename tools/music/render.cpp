#include "tools/music/render.h"

#include <fluidsynth.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <memory>
#include <stdexcept>

namespace orvane::music {
namespace {

struct Closer {
  void operator()(fluid_settings_t* settings) const { delete_fluid_settings(settings); }
  void operator()(fluid_synth_t* synth) const { delete_fluid_synth(synth); }
  void operator()(fluid_player_t* player) const { delete_fluid_player(player); }
};

constexpr int kBlock = 64;

}  // namespace

std::string FindSoundFont() {
  static constexpr std::array<const char*, 2> fonts = {"/usr/share/sounds/sf3/FluidR3Mono_GM.sf3",
                                                       "/usr/share/sounds/sf2/TimGM6mb.sf2"};
  for (const char* font : fonts) {
    if (std::filesystem::exists(font)) return font;
  }
  return {};
}

Rendering Render(const std::string& midi, const std::string& sound_font, double tail) {
  const std::unique_ptr<fluid_settings_t, Closer> settings(new_fluid_settings());
  if (settings == nullptr) throw std::runtime_error("no settings of the synthesizer");
  fluid_settings_setnum(settings.get(), "synth.sample-rate", 44100);
  fluid_settings_setnum(settings.get(), "synth.gain", kRenderGain);
  fluid_settings_setint(settings.get(), "synth.polyphony", 128);
  fluid_settings_setstr(settings.get(), "player.timing-source", "sample");
  fluid_settings_setint(settings.get(), "synth.lock-memory", 0);
  // Of the font only the instruments that play: unpacking all of them takes longer than a piece.
  fluid_settings_setint(settings.get(), "synth.dynamic-sample-loading", 1);
  const std::unique_ptr<fluid_synth_t, Closer> synth(new_fluid_synth(settings.get()));
  if (synth == nullptr || fluid_synth_sfload(synth.get(), sound_font.c_str(), 1) == FLUID_FAILED) {
    throw std::runtime_error("the sound font cannot be loaded: " + sound_font);
  }
  const std::unique_ptr<fluid_player_t, Closer> player(new_fluid_player(synth.get()));
  if (player == nullptr ||
      fluid_player_add_mem(player.get(), midi.data(), midi.size()) == FLUID_FAILED ||
      fluid_player_play(player.get()) == FLUID_FAILED) {
    throw std::runtime_error("the piece cannot be played");
  }
  Rendering out;
  std::array<float, kBlock> left{};
  std::array<float, kBlock> right{};
  auto rest = static_cast<int>(tail * 44100);
  while (rest > 0) {
    if (fluid_player_get_status(player.get()) != FLUID_PLAYER_PLAYING) rest -= kBlock;
    out.Voices = std::max(out.Voices, fluid_synth_get_active_voice_count(synth.get()));
    fluid_synth_write_float(synth.get(), kBlock, left.data(), 0, 1, right.data(), 0, 1);
    out.Left.insert(out.Left.end(), left.begin(), left.end());
    out.Right.insert(out.Right.end(), right.begin(), right.end());
  }
  return out;
}

}  // namespace orvane::music
