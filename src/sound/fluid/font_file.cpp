#include "src/sound/fluid/font_file.h"

#include <bit>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <memory>

namespace orvane {
namespace {

using Address = std::uintptr_t;

// A name is all that an opening is told, so the name is the address of what is opened.
std::string NameOf(const FontFile* file) {
  return std::to_string(std::bit_cast<Address>(file));
}

const FontFile* FileOf(const std::string& name) {
  Address address = 0;
  std::from_chars(name.data(), name.data() + name.size(), address);
  return std::bit_cast<const FontFile*>(address);
}

// A file that is open.
struct Reading {
  const FontFile& File;
  std::FILE* Stream;
};

Reading& ReadingOf(void* handle) {
  return *static_cast<Reading*>(handle);
}

void* Open(const char* name) {
  const FontFile& file = *FileOf(name);
  std::FILE* stream = std::fopen(file.Path().c_str(), "rb");
  return stream == nullptr ? nullptr : std::make_unique<Reading>(Reading{file, stream}).release();
}

int Read(void* bytes, fluid_long_long_t count, void* handle) {
  const auto& [file, stream] = ReadingOf(handle);
  if (file.IsStopped()) return FLUID_FAILED;
  const auto size = static_cast<std::size_t>(count);
  return std::fread(bytes, 1, size, stream) == size ? FLUID_OK : FLUID_FAILED;
}

int Seek(void* handle, fluid_long_long_t offset, int origin) {
  const bool done = std::fseek(ReadingOf(handle).Stream, static_cast<long>(offset), origin) == 0;
  return done ? FLUID_OK : FLUID_FAILED;
}

fluid_long_long_t Tell(void* handle) {
  return std::ftell(ReadingOf(handle).Stream);
}

int Close(void* handle) {
  const std::unique_ptr<Reading> reading(&ReadingOf(handle));
  return std::fclose(reading->Stream) == 0 ? FLUID_OK : FLUID_FAILED;
}

}  // namespace

int FontFile::LoadInto(fluid_synth_t* synth, fluid_settings_t* settings) {
  fluid_sfloader_t* loader = new_fluid_defsfloader(settings);
  if (loader == nullptr) return FLUID_FAILED;
  fluid_sfloader_set_callbacks(loader, &Open, &Read, &Seek, &Tell, &Close);
  fluid_synth_add_sfloader(synth, loader);  // which owns it from then on
  return fluid_synth_sfload(synth, NameOf(this).c_str(), 0);
}

}  // namespace orvane
