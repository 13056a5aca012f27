// Repeatable chance over the plane: the same numbers on every machine, since only integers are
// hashed.
#pragma once

namespace orvane::paint::scene {

// 0 to 1, without any relation between neighbours.
float Hash(int x, int y, int seed);

// Smooth value noise, 0 to 1, one lattice point a unit.
float Noise(float x, float y, int seed);

// A sum of `octaves` noises, each twice as fine and half as strong; about 0 to 1, mean 0.5.
float Fbm(float x, float y, int octaves, int seed);

// Like Fbm, but with sharp crests: mountain ridges. About 0 to 1.
float Ridges(float x, float y, int octaves, int seed);

// The distance to the nearest border between scattered cells, 0 on the border, about 0.5 in a
// cell's middle: cracks in mud and stone. One cell a unit.
float CellBorder(float x, float y, int seed);

}  // namespace orvane::paint::scene
