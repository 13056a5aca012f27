#include "src/frontend/web/mirror/values.h"

#include "src/frontend/shared/faces.h"
#include "src/frontend/shared/spoken_names.h"
#include "src/frontend/shared/spoken_text.h"
#include "src/frontend/shared/text_fit.h"
#include "src/frontend/web/mirror/json.h"

namespace orvane {
namespace {

constexpr const char* kAlignments[] = {"left", "center", "right"};

std::string HexColour(Colour colour) {
  constexpr char digits[] = "0123456789abcdef";
  std::string text = "#";
  for (int shift = 20; shift >= 0; shift -= 4) text += digits[colour >> shift & 15];
  return text;
}

std::string TextList(const Control& control, const std::vector<std::string>& rows,
                     const Translator& texts) {
  std::string out;
  {
    Json list(out, Json::Form::List);
    for (const std::string& row : rows) list.Add(std::string_view(texts.Of(control, row)));
  }
  return out;
}

void WriteLabel(const Label& label, const Translator& texts, Json& json) {
  const std::string text = texts.Of(label, label.Caption);
  const int size = PixelSize(label.Face);
  json.Add("text", text);
  json.Add("colour", HexColour(label.ForeColor));
  json.Add("face", label.Face.Name == kMincho ? "mincho" : "gothic");
  json.Add("size", size);
  json.Add("bold", label.Face.Bold);
  json.Add("align", kAlignments[static_cast<size_t>(label.Alignment)]);
  json.Add("oneLine", IsOneLine(text, label.At.Height, size));
}

void WriteList(const Control& list, const ListValues& values, const Translator& texts, Json& json) {
  json.AddRaw("rows", TextList(list, values.Rows, texts));
  json.Add("row", values.ListIndex);
}

void WriteTabs(const TabStrip& tabs, const Translator& texts, Json& json) {
  json.AddRaw("captions", TextList(tabs, tabs.Captions, texts));
  std::string can_open;
  {
    Json list(can_open, Json::Form::List);
    for (int tab = 0; tab < tabs.TabCount(); ++tab) list.Add(tabs.TabEnabled(tab));
  }
  json.AddRaw("canOpen", can_open);
  json.Add("open", tabs.Tab());
}

void WriteSlider(const Slider& slider, Json& json) {
  json.Add("min", slider.Min);
  json.Add("max", slider.Max);
  json.Add("small", slider.SmallChange);
  json.Add("large", slider.LargeChange);
  json.Add("value", slider.Value);
}

void WriteKind(const Control& control, const Translator& texts, Json& json) {
  switch (control.Kind()) {
    case ControlKind::Label:
      return WriteLabel(static_cast<const Label&>(control), texts, json);
    case ControlKind::Button:
      return json.Add("text",
                      texts.Of(control, static_cast<const CommandButton&>(control).Caption));
    case ControlKind::Frame:
      return json.Add("text", texts.Of(control, static_cast<const Frame&>(control).Caption));
    case ControlKind::Menu:
      return json.Add("text", texts.Of(control, static_cast<const MenuItem&>(control).Caption));
    case ControlKind::Field:
      return json.Add("text", static_cast<const TextBox&>(control).Text);
    case ControlKind::List:
      return WriteList(control, static_cast<const ListBox&>(control), texts, json);
    case ControlKind::FileList:
      return WriteList(control, static_cast<const FileListBox&>(control), texts, json);
    case ControlKind::Tabs:
      return WriteTabs(static_cast<const TabStrip&>(control), texts, json);
    case ControlKind::Slider:
      return WriteSlider(static_cast<const Slider&>(control), json);
    case ControlKind::Picture:
    case ControlKind::Timer:
      return;
  }
}

}  // namespace

const char* KindName(ControlKind kind) {
  switch (kind) {
    case ControlKind::Label:
      return "label";
    case ControlKind::Button:
      return "button";
    case ControlKind::Picture:
      return "picture";
    case ControlKind::List:
    case ControlKind::FileList:
      return "list";
    case ControlKind::Tabs:
      return "tabs";
    case ControlKind::Field:
      return "field";
    case ControlKind::Slider:
      return "slider";
    case ControlKind::Frame:
      return "frame";
    case ControlKind::Menu:
      return "menu";
    case ControlKind::Timer:
      break;
  }
  return "";
}

void WriteNature(const Control& control, int id, int parent, const Translator& texts,
                 std::string& out) {
  Json json(out, Json::Form::Object);
  json.Add("id", id);
  json.Add("kind", KindName(control.Kind()));
  json.Add("name", control.Name());
  json.Add("parent", parent);
  json.Add("pane", control.Pane());
  json.Add("edge", control.Border());
  json.Add("spoken", texts.Of(SpokenName(control)));
  if (control.Kind() == ControlKind::Picture) {
    json.Add("takesClicks", bool(static_cast<const PictureBox&>(control).OnClick));
  }
}

void WriteValues(const Control& control, int id, const Translator& texts, std::string& out) {
  Json json(out, Json::Form::Object);
  json.Add("id", id);
  json.Add("visible", control.Visible);
  if (!control.Visible) return;
  json.Add("enabled", control.Enabled);
  if (control.Kind() != ControlKind::Menu) {
    json.Add("left", control.At.Left);
    json.Add("top", control.At.Top);
    json.Add("width", control.At.Width);
    json.Add("height", control.At.Height);
  }
  WriteKind(control, texts, json);
}

std::string MeaningOf(const Control& control, const Translator& texts) {
  if (control.Kind() != ControlKind::Label) return {};
  const std::string whose = SpokenName(control);
  return texts.Of(whose.empty() ? CaptionBeside(control) : whose);
}

}  // namespace orvane
