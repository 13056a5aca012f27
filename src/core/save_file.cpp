#include "src/core/save_file.h"

#include <cstdint>

#include "src/base/cp932.h"
#include "src/base/little_endian.h"
#include "src/core/game.h"
#include "src/core/state_table.h"

namespace orvane {
namespace {

class Packer {
 public:
  void operator()(const char*, const Int16& field) { Number(field, 2); }
  void operator()(const char*, const Int32& field) { Number(field, 4); }
  template <int N>
  void operator()(const char*, const FixedText<N>& field) {
    Bytes += Cp932Field(field.Full(), N);
  }
  template <class T, size_t N>
  void operator()(const char* name, const Array<T, N>& fields) {
    for (const T& field : fields) (*this)(name, field);
  }

  std::string Bytes;

 private:
  void Number(int value, size_t size) {
    AppendLittleEndian(Bytes, static_cast<uint32_t>(value), size);
  }
};

class Unpacker {
 public:
  explicit Unpacker(std::string_view bytes) : bytes_(bytes) {}

  void operator()(const char*, Int16& field) { field = static_cast<int16_t>(Number(2)); }
  void operator()(const char*, Int32& field) { field = static_cast<int32_t>(Number(4)); }
  template <int N>
  void operator()(const char*, FixedText<N>& field) {
    field = FromCp932(Take(N));
  }
  template <class T, size_t N>
  void operator()(const char* name, Array<T, N>& fields) {
    for (T& field : fields) (*this)(name, field);
  }

 private:
  std::string_view Take(size_t size) {
    const std::string_view taken = bytes_.substr(0, size);
    bytes_.remove_prefix(taken.size());
    return taken;
  }
  uint64_t Number(size_t size) { return FromLittleEndian(Take(size)); }

  std::string_view bytes_;
};

}  // namespace

std::string PackRecord(const GameRecord& record) {
  Packer packer;
  VisitRecord(record, packer);
  return packer.Bytes;
}

void UnpackRecord(std::string_view bytes, GameRecord& record) {
  Unpacker unpacker(bytes);
  VisitRecord(record, unpacker);
}

void WriteSave(Game& game, const std::string& file, const Handler& then) {
  std::string bytes = PackRecord(game.state);
  const std::string before = game.services.Files.Read(file).value_or("");
  if (before.size() > bytes.size()) bytes += before.substr(bytes.size());
  game.stage.Await();
  game.services.Files.Replace(file, bytes, [&game, file, then](const std::string& failure) {
    game.stage.Resume([file, then, failure] {
      if (!failure.empty()) throw RunError(ErrorKind::File, file + ": " + failure);
      then();
    });
  });
}

}  // namespace orvane
