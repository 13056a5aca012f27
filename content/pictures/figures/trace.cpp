#include "content/pictures/figures/trace.h"

#include <map>

#include "content/pictures/figures/field.h"

namespace orvane::paint {
namespace {

constexpr float kSoftest = 8;  // no soft join in any model is wider

struct Sample {
  int Material = -1;
  float Light = 0;
  float Depth = 0;
};

class Tracer {
 public:
  Tracer(const Model& model, const std::vector<Material>& materials, const View& view,
         const Camera& eye)
      : materials_(materials),
        view_(view),
        eye_(eye),
        ray_(model),
        near_(model),
        shade_(model),
        key_(InModel(view.Light)),
        behind_(InModel(view.Behind)) {}

  TracedPixel Pixel(int x, int y) {
    ray_.KeepNearLine(Origin(static_cast<float>(x) + 0.5F, static_cast<float>(y) + 0.5F),
                      eye_.Back * -1, kSoftest * 0.3F + 1 / eye_.Scale, false);
    if (ray_.Empty()) return {};
    struct Sum {
      int Count = 0;
      float Light = 0;
    };
    std::map<int, Sum> sums;
    int covered = 0;
    TracedPixel pixel{-1, 0, 1e9F};
    const int n = view_.Samples;
    for (int i = 0; i < n * n; ++i) {
      const int row = i / n;
      const float u = (static_cast<float>(i % n) + 0.5F) / static_cast<float>(n);
      const float v = (static_cast<float>(row) + 0.5F) / static_cast<float>(n);
      const Sample sample = Shoot(static_cast<float>(x) + u, static_cast<float>(y) + v);
      if (sample.Material < 0) continue;
      ++covered;
      Sum& sum = sums[sample.Material];
      ++sum.Count;
      sum.Light += sample.Light;
      pixel.Depth = std::min(pixel.Depth, sample.Depth);
    }
    if (covered * 2 < n * n) return {};
    int most = 0;
    for (const auto& [material, sum] : sums) {
      if (sum.Count <= most) continue;
      most = sum.Count;
      pixel.Material = material;
      pixel.Light = sum.Light / static_cast<float>(sum.Count);
    }
    return pixel;
  }

 private:
  Vec InModel(Vec seen) const {
    return Unit(eye_.Right * seen.X + eye_.Up * seen.Y + eye_.Back * seen.Z);
  }

  Vec Origin(float x, float y) const {
    return eye_.Middle + eye_.Right * ((x - eye_.HalfWidth) / eye_.Scale) +
           eye_.Up * ((eye_.HalfHeight - y) / eye_.Scale);
  }

  Sample Shoot(float x, float y) {
    const Vec origin = Origin(x, y);
    const Vec ahead = eye_.Back * -1;
    float t = ray_.Near();
    for (int step = 0; step < 120 && t < ray_.Far(); ++step) {
      const Vec at = origin + ahead * t;
      const float distance = ray_.At(at);
      if (distance < 0.06F) return Shade(at, t);
      t += distance * 0.8F;
    }
    return {};
  }

  Sample Shade(Vec at, float depth) {
    near_.KeepNearPoint(at, view_.Folds + kSoftest * 0.5F);
    Touch touch;
    touch.At = at;
    const Group* owner = near_.Owner(at, touch.Place);
    if (owner == nullptr) return {};
    const Vec ahead = eye_.Back * -1;
    touch.Material = owner->Material;
    touch.Blend = owner->Blend;
    touch.Normal = near_.NormalAt(at);
    if (Dot(touch.Normal, ahead) > 0.2F) touch.Normal = touch.Normal * -1;
    touch.Facing = Dot(touch.Normal, key_);
    touch.Front = Clamp(-Dot(touch.Normal, ahead));
    touch.Shadow = touch.Facing > -0.1F ? ShadowAt(at, touch.Normal) : 1.0F;
    touch.Open = OpenAt(at, touch.Normal);
    touch.Rim = std::pow(Clamp(1 + Dot(touch.Normal, ahead)), 2.5F) *
                Clamp(Dot(touch.Normal, behind_) + 0.2F);
    touch.Shine = std::pow(Clamp(Dot(touch.Normal, Unit(key_ - ahead))), 24.0F) * touch.Shadow;
    const Material& material = materials_[static_cast<size_t>(touch.Material)];
    float light = PlainLight(touch, material);
    if (material.Pattern) light = material.Pattern(touch, light);
    return {touch.Material, light, depth};
  }

  float ShadowAt(Vec at, Vec normal) {
    const Vec from = at + normal;
    shade_.KeepNearLine(from, key_, 8, true);
    float shadow = 1;
    float t = view_.Folds * 0.18F;
    for (int step = 0; step < 28 && t < std::min(100.0F, shade_.Far()); ++step) {
      const float distance = shade_.At(from + key_ * t);
      shadow = std::min(shadow, 8 * distance / t + 0.05F);
      if (shadow < 0.03F) break;
      t += std::max(view_.Folds * 0.08F, distance);
    }
    return Clamp(shadow);
  }

  // Four taps outward: what stands near by shuts out the sky.
  float OpenAt(Vec at, Vec normal) const {
    float shut = 0;
    float weight = 1;
    for (int i = 1; i <= 4; ++i) {
      const float out = view_.Folds * static_cast<float>(i) / 4;
      shut += weight * Clamp((out - near_.At(at + normal * out)) / out);
      weight *= 0.7F;
    }
    return Clamp(1 - shut * 0.42F);
  }

  const std::vector<Material>& materials_;
  const View& view_;
  const Camera& eye_;
  Field ray_;
  Field near_;
  Field shade_;
  Vec key_;
  Vec behind_;
};

}  // namespace

std::vector<TracedPixel> Trace(const Model& model, const std::vector<Material>& materials,
                               const View& view, const Camera& eye) {
  Tracer tracer(model, materials, view, eye);
  std::vector<TracedPixel> pixels;
  for (int y = 0; y < view.Height; ++y) {
    for (int x = 0; x < view.Width; ++x) pixels.push_back(tracer.Pixel(x, y));
  }
  return pixels;
}

}  // namespace orvane::paint
