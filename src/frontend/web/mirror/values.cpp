#include "src/frontend/web/mirror/values.h"

#include <cstdio>

#include "src/frontend/shared/faces.h"
#include "src/frontend/shared/spoken_names.h"
#include "src/frontend/shared/spoken_text.h"
#include "src/frontend/shared/text_fit.h"
#include "src/frontend/web/mirror/json.h"

namespace orvane {
namespace {

constexpr const char* kAlignments[] = {"left", "center", "right"};

std::string HexColour(Colour colour) {
  char text[8];
  std::snprintf(text, sizeof text, "#%06x", static_cast<unsigned>(colour & 0xFFFFFF));
  return text;
}

std::string TextList(const std::vector<std::string>& texts) {
  std::string out;
  {
    Json list(out, Json::Form::List);
    for (const std::string& text : texts) list.Add(std::string_view(text));
  }
  return out;
}

void WriteLabel(const Label& label, Json& json) {
  const int size = PixelSize(label.Face);
  json.Add("text", label.Caption);
  json.Add("colour", HexColour(label.ForeColor));
  json.Add("face", label.Face.Name == kMincho ? "mincho" : "gothic");
  json.Add("size", size);
  json.Add("bold", label.Face.Bold);
  json.Add("align", kAlignments[static_cast<size_t>(label.Alignment)]);
  json.Add("oneLine", IsOneLine(label.Caption, label.At.Height, size));
  const std::string whose = SpokenName(label);
  json.Add("meaning", whose.empty() ? CaptionBeside(label) : whose);
}

void WriteList(const ListValues& values, Json& json) {
  json.AddRaw("rows", TextList(values.Rows));
  json.Add("row", values.ListIndex);
}

void WriteTabs(const TabStrip& tabs, Json& json) {
  json.AddRaw("captions", TextList(tabs.Captions));
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

void WriteKind(const Control& control, Json& json) {
  switch (control.Kind()) {
    case ControlKind::Label:
      return WriteLabel(static_cast<const Label&>(control), json);
    case ControlKind::Button:
      return json.Add("text", static_cast<const CommandButton&>(control).Caption);
    case ControlKind::Frame:
      return json.Add("text", static_cast<const Frame&>(control).Caption);
    case ControlKind::Menu:
      return json.Add("text", static_cast<const MenuItem&>(control).Caption);
    case ControlKind::Field:
      return json.Add("text", static_cast<const TextBox&>(control).Text);
    case ControlKind::List:
      return WriteList(static_cast<const ListBox&>(control), json);
    case ControlKind::FileList:
      return WriteList(static_cast<const FileListBox&>(control), json);
    case ControlKind::Tabs:
      return WriteTabs(static_cast<const TabStrip&>(control), json);
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

void WriteNature(const Control& control, int id, int parent, std::string& out) {
  Json json(out, Json::Form::Object);
  json.Add("id", id);
  json.Add("kind", KindName(control.Kind()));
  json.Add("name", control.Name());
  json.Add("parent", parent);
  json.Add("pane", control.Pane());
  json.Add("edge", control.Border());
  json.Add("spoken", SpokenName(control));
  if (control.Kind() == ControlKind::Picture) {
    json.Add("takesClicks", bool(static_cast<const PictureBox&>(control).OnClick));
  }
}

void WriteValues(const Control& control, int id, std::string& out) {
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
  WriteKind(control, json);
}

}  // namespace orvane
