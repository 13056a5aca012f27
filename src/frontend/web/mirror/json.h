// Text in the form of JSON, for the page to read.
#pragma once

#include <string>
#include <string_view>

namespace orvane {

// Writes a number behind what stands in `out`, with thousandths where it has a fraction; what no
// page can show counts as far away.
void AppendNumber(std::string& out, double value);
void AppendNumber(std::string& out, int value);

// Writes one object or list behind what stands in `out` already.
class Json {
 public:
  enum class Form {
    Object,
    List,
    Rest,  // of an object that has values already, its end taken away
  };

  Json(std::string& out, Form form) : out_(out), form_(form) {
    if (form != Form::Rest) out_ += form == Form::Object ? '{' : '[';
    first_ = form != Form::Rest;
  }
  ~Json() { out_ += form_ == Form::List ? ']' : '}'; }
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
    AppendNumber(out_, value);
  }
  void Add(std::string_view name, double value) {
    Name(name);
    AppendNumber(out_, value);
  }
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
