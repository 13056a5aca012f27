#include "content/pictures/figures/field.h"

namespace orvane::paint {
namespace {

constexpr float kFarAway = 1e9F;

}  // namespace

void Field::KeepNearLine(Vec from, Vec direction, float reach, bool forward) {
  items_.clear();
  near_ = kFarAway;
  far_ = -kFarAway;
  // True when a ball is near enough; widens the stretch only for single parts.
  const auto meets = [&](Vec middle, float radius, float& t) {
    const Vec to = middle - from;
    t = Dot(to, direction);
    const float limit = radius + reach;
    if (forward && t < -limit) return false;
    const Vec off = to - direction * t;
    return Dot(off, off) <= limit * limit;
  };
  for (const Group& group : model_.Groups()) {
    float t = 0;
    if (!meets(group.Middle, group.Reach, t)) continue;
    for (const Part& part : group.Parts) {
      if (!meets(part.Middle, part.Reach, t)) continue;
      items_.push_back({&group, &part});
      near_ = std::min(near_, t - part.Reach - reach);
      far_ = std::max(far_, t + part.Reach + reach);
    }
  }
}

void Field::KeepNearPoint(Vec point, float reach) {
  items_.clear();
  const auto meets = [&](Vec middle, float radius) {
    const Vec to = middle - point;
    return Dot(to, to) <= (radius + reach) * (radius + reach);
  };
  for (const Group& group : model_.Groups()) {
    if (!meets(group.Middle, group.Reach)) continue;
    for (const Part& part : group.Parts) {
      if (meets(part.Middle, part.Reach)) items_.push_back({&group, &part});
    }
  }
}

float Field::At(Vec point) const {
  float all = kFarAway;
  for (size_t i = 0; i < items_.size();) {
    const Group* group = items_[i].Owner;
    float own = kFarAway;
    for (; i < items_.size() && items_[i].Owner == group; ++i) {
      own = SmoothMin(own, Distance(*items_[i].Piece, point), group->Blend);
    }
    all = SmoothMin(all, own, group->Join);
  }
  return all;
}

Vec Field::NormalAt(Vec point) const {
  constexpr float kStep = 0.3F;
  const Vec a{1, -1, -1};
  const Vec b{-1, -1, 1};
  const Vec c{-1, 1, -1};
  const Vec d{1, 1, 1};
  return Unit(a * At(point + a * kStep) + b * At(point + b * kStep) + c * At(point + c * kStep) +
              d * At(point + d * kStep));
}

const Group* Field::Owner(Vec point, Spot& place) const {
  const Group* owner = nullptr;
  float best = kFarAway;
  for (const Item& item : items_) {
    const float distance = Distance(*item.Piece, point);
    if (distance < best) {
      best = distance;
      owner = item.Owner;
    }
  }
  if (owner == nullptr) return nullptr;
  // Neighbouring pieces of a chain share the place, or plates and scales would jump at the seams.
  const float width = std::max(0.4F, owner->Blend * 0.35F);
  float sum = 0;
  Spot mean;
  for (const Item& item : items_) {
    if (item.Owner != owner) continue;
    Spot spot;
    const float distance = Distance(*item.Piece, point, &spot);
    const float near = 1 - (distance - best) / width;
    if (near <= 0) continue;
    const float weight = near * near;
    sum += weight;
    mean.Along += spot.Along * weight;
    mean.Out += spot.Out * weight;
    mean.Side = mean.Side + spot.Side * weight;
    mean.Run = mean.Run + spot.Run * weight;
  }
  place = {mean.Along / sum, mean.Out / sum, Unit(mean.Side), Unit(mean.Run)};
  return owner;
}

}  // namespace orvane::paint
