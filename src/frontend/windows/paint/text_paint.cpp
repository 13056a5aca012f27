#include "src/frontend/windows/paint/text_paint.h"

#include <algorithm>
#include <cmath>

#include "src/frontend/shared/faces.h"
#include "src/frontend/shared/text_fit.h"
#include "src/frontend/windows/paint/text_lines.h"
#include "src/platform/windows/wide_text.h"

namespace orvane {
namespace {

int Round(double pixels) {
  return static_cast<int>(std::lround(pixels));
}

void PaintLine(HDC context, const RECT& box, int top, const std::wstring& line, Align alignment) {
  const int rest = static_cast<int>(box.right - box.left) - TextWidth(context, line);
  int left = box.left;
  if (alignment == Align::Centre) left += rest / 2;
  if (alignment == Align::Right) left += rest;
  TextOutW(context, left, top, line.c_str(), static_cast<int>(line.size()));
}

std::wstring WithoutBlanksAround(const std::wstring& text) {
  const size_t first = text.find_first_not_of(L' ');
  if (first == std::wstring::npos) return {};
  return text.substr(first, text.find_last_not_of(L' ') + 1 - first);
}

}  // namespace

int TextWidth(HDC context, const std::wstring& text) {
  SIZE size{};
  GetTextExtentPoint32W(context, text.c_str(), static_cast<int>(text.size()), &size);
  return size.cx;
}

COLORREF SystemColour(Colour colour) {
  return RGB(colour >> 16 & 0xFF, colour >> 8 & 0xFF, colour & 0xFF);
}

int LetterPixels(const Font& font, double scale) {
  return std::max(1, Round(PixelSize(font) * scale));
}

void SelectFitting(HDC context, Fonts& fonts, const Font& font, int pixels,
                   const std::wstring& text, int room) {
  SelectObject(context, fonts.Get(font, pixels));
  const int width = TextWidth(context, text);
  if (width > room) SelectObject(context, fonts.Get(font, pixels, SqueezeInto(width, room)));
}

void PaintText(HDC context, Fonts& fonts, const RECT& box, const LabelValues& text, double scale) {
  if (text.Caption.empty()) return;
  const int size = PixelSize(text.Face);
  const int pixels = LetterPixels(text.Face, scale);
  const int width = box.right - box.left;
  const int height = box.bottom - box.top;
  const std::wstring words = Wide(text.Caption);
  SetBkMode(context, TRANSPARENT);
  SetTextColor(context, SystemColour(text.ForeColor));
  SelectObject(context, fonts.Get(text.Face, pixels));
  TEXTMETRICW metrics;
  GetTextMetricsW(context, &metrics);
  const int top = box.top - Round(scale * ExtraRise(size, double(metrics.tmAscent) / scale));
  if (IsOneLine(text.Caption, height / scale, size)) {
    SelectFitting(context, fonts, text.Face, pixels, WithoutBlanksAround(words), width);
    return PaintLine(context, box, top, words, text.Alignment);
  }
  const auto measure = [context](std::wstring_view part) {
    return TextWidth(context, std::wstring(part));
  };
  const CountLines count = [&](double room) {
    return static_cast<int>(BreakLines(words, Round(room), measure).size());
  };
  const Fit fit = FitLines(count, width, height, metrics.tmHeight + metrics.tmExternalLeading,
                           OwnLineHeight(size) * scale);
  const auto lines = BreakLines(words, Round(width / fit.Squeeze), measure);
  SelectObject(context, fonts.Get(text.Face, pixels, fit.Squeeze));
  double line_top = top;
  for (const std::wstring& line : lines) {
    PaintLine(context, box, Round(line_top), line, text.Alignment);
    line_top += fit.Pitch;
  }
}

}  // namespace orvane
