// The item file: records by their numbers, whatever is in it.
#include "src/core/item_file.h"
#include "src/platform/memory_storage.h"
#include "tests/fuzz/harness.h"

namespace orvane::fuzz {

void Try(Input& input) {
  MemoryStorage files;
  const std::string bytes = input.Rest();
  files.Files["Item.dat"] = bytes;
  ItemFile items;
  const bool opened = Allow([&] { items.Open(files); });
  Require(opened == (bytes.size() >= size_t{ItemFile::RecordSize} * ItemFile::RecordCount),
          "a file of fifty records opens");
  const int last = static_cast<int>(bytes.size()) / ItemFile::RecordSize;
  for (int number = -1; number <= last + 1; ++number) {
    ItemRecord record;
    record.Kind = 1;
    items.Read(number, record);
    if (number < 1 || number > last) {
      Require(record.Kind == 0 && record.Value == 0 && record.Name.Trimmed().empty(),
              "where there is no record, none is read");
    }
  }
}

}  // namespace orvane::fuzz
