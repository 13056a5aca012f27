// Text in the form of JSON, for the page to read.
#pragma once

#include <string>
#include <string_view>

namespace orvane {

// Writes one object or list behind what stands in `out` already.
class Json {
 public:
  enum class Form { Object, List };

  Json(std::string& out, Form form) : out_(out), form_(form) {
    out_ += form == Form::Object ? '{' : '[';
  }
  ~Json() { out_ += form_ == Form::Object ? '}' : ']'; }
  Json(const Json&) = delete;
  Json& operator=(const Json&) = delete;

  // A value of an object, by its name, which holds no signs that JSON sets apart.
  void Add(std::string_view name, std::string_view text) {
    Name(name);
    Quote(text);
  }
  void Add(std::string_view name, const char* text) { Add(name, std::string_view(text)); }
  void Add(std::string_view name, bool value) {
    Name(name);
    out_ += value ? "true" : "false";
  }
  void Add(std::string_view name, int value) {
    Name(name);
    out_ += std::to_string(value);
  }
  // The same with a fraction of thousandths; what no page can show counts as far away.
  void Add(std::string_view name, double value);
  // What stands in the text is JSON already.
  void AddRaw(std::string_view name, std::string_view json) {
    Name(name);
    out_ += json;
  }

  // The next value of a list.
  void Add(std::string_view text) {
    Comma();
    Quote(text);
  }
  void Add(bool value) {
    Comma();
    out_ += value ? "true" : "false";
  }
  void AddRaw(std::string_view json) {
    Comma();
    out_ += json;
  }

 private:
  void Comma() {
    if (!first_) out_ += ',';
    first_ = false;
  }
  void Name(std::string_view name) {
    Comma();
    out_ += '"';
    out_ += name;
    out_ += "\":";
  }
  void Quote(std::string_view text);

  std::string& out_;
  Form form_;
  bool first_ = true;
};

}  // namespace orvane
