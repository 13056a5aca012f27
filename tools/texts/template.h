// A template of a catalogue, as gettext has it: texts with remarks for those who translate them.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace orvane::texts {

class Template {
 public:
  // Adds a text with a remark that tells where it stands. Blanks around a text are left out, a text
  // without letters is none, and of a text that is there already only the remark is added.
  void Add(const std::string& text, const std::string& remark);
  bool Has(const std::string& text) const;
  // All texts, in the order in which they were added.
  const std::vector<std::string>& Texts() const { return order_; }
  // The whole template, as a .pot file.
  std::string Written() const;

 private:
  std::vector<std::string> order_;
  std::map<std::string, std::vector<std::string>> remarks_;
};

}  // namespace orvane::texts
