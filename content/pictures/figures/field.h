// The part of a model that can matter near a line or a point: what makes the rendering quick.
#pragma once

#include <vector>

#include "content/pictures/figures/model.h"

namespace orvane::paint {

class Field {
 public:
  explicit Field(const Model& model) : model_(model) {}

  // Keeps only the parts within `reach` of the line through `from` along the unit `direction`;
  // with `forward`, only of its half ahead of `from`.
  void KeepNearLine(Vec from, Vec direction, float reach, bool forward);
  // Keeps only the parts within `reach` of the point.
  void KeepNearPoint(Vec point, float reach);

  bool Empty() const { return items_.empty(); }
  // The stretch of the line, in units from `from`, that holds all kept parts.
  float Near() const { return near_; }
  float Far() const { return far_; }

  // Signed distance to the kept parts, with all soft joins.
  float At(Vec point) const;
  // The direction away from the surface.
  Vec NormalAt(Vec point) const;
  // The group that the surface at the point belongs to, and the place on it.
  const Group* Owner(Vec point, Spot& place) const;

 private:
  struct Item {
    const Group* Owner;
    const Part* Piece;
  };
  const Model& model_;
  std::vector<Item> items_;
  float near_ = 0;
  float far_ = 0;
};

}  // namespace orvane::paint
