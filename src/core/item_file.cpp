#include "src/core/item_file.h"

#include <cstdint>
#include <string_view>

#include "src/base/cp932.h"
#include "src/base/error.h"
#include "src/base/little_endian.h"

namespace orvane {
namespace {

constexpr const char* kFile = "Item.dat";
constexpr size_t kNameAt = 4;
constexpr size_t kNameSize = 20;
constexpr size_t kKindAt = 24;
constexpr size_t kValueAt = 28;

Int32 NumberAt(std::string_view record, size_t at) {
  return Int32(static_cast<int32_t>(FromLittleEndian(record.substr(at, 4))));
}

}  // namespace

void ItemFile::Open(const Storage& files) {
  bytes_ = files.Open(kFile);
  if (bytes_ == nullptr || bytes_->size() < size_t{RecordSize} * RecordCount)
    throw RunError(ErrorKind::File, kFile);
}

void ItemFile::Read(int number, ItemRecord& buffer) const {
  buffer = ItemRecord();
  if (bytes_ == nullptr || number < 1 ||
      bytes_->size() < size_t{RecordSize} * static_cast<size_t>(number))
    return;
  const std::string_view record = std::string_view(*bytes_).substr(
      size_t{RecordSize} * static_cast<size_t>(number - 1), RecordSize);
  buffer.Name = FromCp932(record.substr(kNameAt, kNameSize));
  buffer.Kind = NumberAt(record, kKindAt);
  buffer.Value = NumberAt(record, kValueAt);
}

}  // namespace orvane
