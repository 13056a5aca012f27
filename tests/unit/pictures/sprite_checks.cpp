#include "tests/unit/pictures/sprite_checks.h"

#include <algorithm>
#include <map>
#include <set>

namespace orvane::pictures {
namespace {

// Counts pixels of one kind of fault and keeps the place of the first.
class Tally {
 public:
  explicit Tally(std::string what) : what_(std::move(what)) {}

  void Add(int x, int y) {
    if (count_++ == 0) first_ = "(" + std::to_string(x) + ", " + std::to_string(y) + ")";
  }
  void Report(const std::string& name, Faults& faults) const {
    if (count_ == 0) return;
    faults.push_back(name + ": " + std::to_string(count_) + " " + what_ + ", the first at " +
                     first_);
  }

 private:
  std::string what_;
  std::string first_;
  int count_ = 0;
};

bool OnEdge(int x, int y, const Rect& cell) {
  return x == 0 || y == 0 || x == cell.Width - 1 || y == cell.Height - 1;
}

bool Fits(const Surface& sheet, const Rect& cell) {
  return cell.X >= 0 && cell.Y >= 0 && cell.X + cell.Width <= sheet.Width() &&
         cell.Y + cell.Height <= sheet.Height();
}

void ReportFew(const std::string& name, const std::string& what, int count, int least,
               Faults& faults) {
  if (count >= least) return;
  faults.push_back(name + ": only " + std::to_string(count) + " " + what + " of at least " +
                   std::to_string(least));
}

// Where a pixel stands in a list of all pixels of the sheet.
size_t PlaceOf(const Surface& sheet, int x, int y) {
  return static_cast<size_t>(y) * static_cast<size_t>(sheet.Width()) + static_cast<size_t>(x);
}

void Cover(std::vector<int>& covers, const Surface& sheet, const Rect& cell) {
  for (int y = cell.Y; y < cell.Y + cell.Height; ++y) {
    for (int x = cell.X; x < cell.X + cell.Width; ++x) {
      if (sheet.Contains(x, y)) ++covers[PlaceOf(sheet, x, y)];
    }
  }
}

}  // namespace

int ColourCount(const Surface& sheet) {
  std::set<Colour> colours;
  for (int y = 0; y < sheet.Height(); ++y) {
    colours.insert(sheet.Row(y), sheet.Row(y) + sheet.Width());
  }
  return static_cast<int>(colours.size());
}

Faults SizeFaults(const Surface& sheet, int width, int height, int most_colours) {
  Faults faults;
  if (sheet.Width() != width || sheet.Height() != height) {
    faults.push_back("is " + std::to_string(sheet.Width()) + " by " +
                     std::to_string(sheet.Height()) + ", not " + std::to_string(width) + " by " +
                     std::to_string(height));
  }
  const int colours = ColourCount(sheet);
  if (most_colours > 0 && colours > most_colours) {
    faults.push_back("has " + std::to_string(colours) + " colours, more than " +
                     std::to_string(most_colours));
  }
  if (colours < 2) faults.emplace_back("is all of one colour");
  return faults;
}

Faults PairFaults(const Surface& sheet, const SpritePair& pair) {
  Faults faults;
  if (!Fits(sheet, pair.Image)) return {pair.Name + ": its picture lies outside of the sheet"};
  Tally grey("mask pixels neither black nor white");
  Tally fringe("picture pixels not white where the mask is black");
  Tally edge("figure pixels at the cell's edge");
  int mask_figure = 0;
  int picture_figure = 0;
  for (int y = 0; y < pair.Image.Height; ++y) {
    for (int x = 0; x < pair.Image.Width; ++x) {
      const Colour image = sheet.At(pair.Image.X + x, pair.Image.Y + y);
      const bool has_mask = sheet.Contains(pair.MaskX + x, pair.MaskY + y);
      const Colour mask = has_mask ? sheet.At(pair.MaskX + x, pair.MaskY + y) : kBlack;
      if (mask != kBlack && mask != kWhite) grey.Add(x, y);
      if (mask == kBlack && image != kWhite) fringe.Add(x, y);
      if (pair.ClearEdge && OnEdge(x, y, pair.Image) && (mask != kBlack || image != kWhite)) {
        edge.Add(x, y);
      }
      if (mask == kWhite) ++mask_figure;
      if (image != kWhite) ++picture_figure;
    }
  }
  grey.Report(pair.Name, faults);
  fringe.Report(pair.Name, faults);
  edge.Report(pair.Name, faults);
  ReportFew(pair.Name, "white pixels in the mask", mask_figure, pair.LeastFigure, faults);
  ReportFew(pair.Name, "coloured pixels in the picture", picture_figure, pair.LeastFigure, faults);
  return faults;
}

Faults StripFaults(const Surface& sheet, const WhiteStrip& strip) {
  if (!Fits(sheet, strip.Cell)) return {strip.Name + ": lies outside of the sheet"};
  Faults faults;
  Tally grey("pixels neither black nor white");
  Tally edge("figure pixels at the cell's edge");
  int figure = 0;
  for (int y = 0; y < strip.Cell.Height; ++y) {
    for (int x = 0; x < strip.Cell.Width; ++x) {
      const Colour colour = sheet.At(strip.Cell.X + x, strip.Cell.Y + y);
      if (colour != kBlack && colour != kWhite) grey.Add(x, y);
      if (colour != kBlack && OnEdge(x, y, strip.Cell)) edge.Add(x, y);
      if (colour == kWhite) ++figure;
    }
  }
  grey.Report(strip.Name, faults);
  edge.Report(strip.Name, faults);
  ReportFew(strip.Name, "white pixels", figure, strip.LeastFigure, faults);
  return faults;
}

Faults OutsideFaults(const Surface& sheet, const std::vector<SpritePair>& pairs,
                     const std::vector<WhiteStrip>& strips) {
  std::vector<int> covers(PlaceOf(sheet, 0, sheet.Height()));
  for (const SpritePair& pair : pairs) {
    Cover(covers, sheet, pair.Image);
    Cover(covers, sheet, {pair.MaskX, pair.MaskY, pair.Image.Width, pair.Image.Height});
  }
  for (const WhiteStrip& strip : strips) Cover(covers, sheet, strip.Cell);
  Tally stray("pixels outside of all cells that are not black");
  Tally twice("pixels in two cells");
  for (int y = 0; y < sheet.Height(); ++y) {
    for (int x = 0; x < sheet.Width(); ++x) {
      const int count = covers[PlaceOf(sheet, x, y)];
      if (count == 0 && sheet.At(x, y) != kBlack) stray.Add(x, y);
      if (count > 1) twice.Add(x, y);
    }
  }
  Faults faults;
  stray.Report("sheet", faults);
  twice.Report("sheet", faults);
  return faults;
}

Faults SamenessFaults(const Surface& sheet, const std::vector<Rect>& cells) {
  std::map<std::vector<Colour>, size_t> seen;
  Faults faults;
  for (size_t i = 0; i < cells.size(); ++i) {
    std::vector<Colour> pixels;
    for (int y = 0; y < cells[i].Height; ++y) {
      const Colour* row = sheet.Row(cells[i].Y + y) + cells[i].X;
      pixels.insert(pixels.end(), row, row + cells[i].Width);
    }
    const auto [found, is_new] = seen.emplace(std::move(pixels), i);
    if (!is_new) {
      faults.push_back("cells " + std::to_string(found->second) + " and " + std::to_string(i) +
                       " are alike");
    }
  }
  return faults;
}

bool InFigure(const Surface& sheet, const SpritePair& pair, int x, int y) {
  return x >= 0 && y >= 0 && x < pair.Image.Width && y < pair.Image.Height &&
         sheet.Contains(pair.MaskX + x, pair.MaskY + y) &&
         sheet.At(pair.MaskX + x, pair.MaskY + y) == kWhite &&
         sheet.At(pair.Image.X + x, pair.Image.Y + y) != kShadow;
}

double OutlineLikeness(const Surface& one, const SpritePair& its_pair, const Surface& other,
                       const SpritePair& other_pair) {
  int both = 0;
  int either = 0;
  for (int y = 0; y < std::max(its_pair.Image.Height, other_pair.Image.Height); ++y) {
    for (int x = 0; x < std::max(its_pair.Image.Width, other_pair.Image.Width); ++x) {
      const bool in_one = InFigure(one, its_pair, x, y);
      const bool in_other = InFigure(other, other_pair, x, y);
      both += in_one && in_other ? 1 : 0;
      either += in_one || in_other ? 1 : 0;
    }
  }
  return either == 0 ? 1 : static_cast<double>(both) / either;
}

}  // namespace orvane::pictures
