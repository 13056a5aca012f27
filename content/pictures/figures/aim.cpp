#include "content/pictures/figures/render.h"

namespace orvane::paint {
namespace {

struct Box {
  float Left = 1e9F;
  float Right = -1e9F;
  float Low = 1e9F;
  float High = -1e9F;
};

Box Measure(const Model& model, const Camera& eye) {
  Box box;
  for (const Group& group : model.Groups()) {
    for (const Part& part : group.Parts) {
      box.Right = std::max(box.Right, Extent(part, eye.Right));
      box.Left = std::min(box.Left, -Extent(part, eye.Right * -1));
      box.High = std::max(box.High, Extent(part, eye.Up));
      box.Low = std::min(box.Low, -Extent(part, eye.Up * -1));
    }
  }
  return box;
}

}  // namespace

Camera Aim(const Model& model, const View& view) {
  Camera eye;
  const auto turn = [&](Vec v) { return TurnY(TurnX(v, -view.Pitch), -view.Yaw); };
  eye.Right = turn({1, 0, 0});
  eye.Up = turn({0, 1, 0});
  eye.Back = turn({0, 0, 1});
  eye.HalfWidth = static_cast<float>(view.Width) * 0.5F;
  eye.HalfHeight = static_cast<float>(view.Height) * 0.5F;
  eye.Scale = view.Scale;
  eye.Middle = view.Middle;
  if (view.Scale > 0) return eye;
  const Box box = Measure(model, eye);
  const float wide = 2 * (eye.HalfWidth - view.Margin - view.Aside) / (box.Right - box.Left);
  const float high = 2 * (eye.HalfHeight - view.Margin - view.Room * 0.5F) / (box.High - box.Low);
  eye.Scale = std::min(wide, high);
  const float across = (box.Left + box.Right) * 0.5F;
  const float standing = box.Low + (eye.HalfHeight - view.Margin - view.Room) / eye.Scale;
  const float hovering = (box.Low + box.High - view.Room / eye.Scale) * 0.5F;
  const float upright = view.OnGround ? standing : hovering;
  eye.Middle = eye.Right * across + eye.Up * upright;
  return eye;
}

}  // namespace orvane::paint
