// The game's files in a browser: all of them in memory, and what is replaced kept by the page.
#pragma once

#include <map>
#include <string>

#include "src/frontend/web/services/page.h"
#include "src/platform/memory_storage.h"

namespace orvane {

class PageStorage : public MemoryStorage {
 public:
  explicit PageStorage(Page& page) : page_(page) {}

  // Tells its outcome when the page has kept the bytes, or could not.
  void Replace(const std::string& name, const std::string& bytes, Outcome outcome) override;

  // The page's answer to the request of that number: nothing, or what is in the way.
  void Kept(int number, const std::string& failure);

 private:
  struct Request {
    std::string Name;
    std::string Bytes;
    Outcome Tell;
  };

  Page& page_;
  int asked_ = 0;
  std::map<int, Request> requests_;
};

}  // namespace orvane
