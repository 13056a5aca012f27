// The families of tiles; each puts its codes on the sheet. content/maps/tiles.csv names them all.
#pragma once

#include "content/pictures/tiles/draw.h"

namespace orvane::paint::tiles {

void PaintGrounds(Sheet& sheet);  // grass, sand, waste, marsh, rock, sandbank: the plain floors
void PaintPatches(Sheet& sheet);  // path, sand, forest floor, paving and waste set into grass
void PaintWaters(Sheet& sheet);   // lakes, sea, lava with their shores; waterfall, stepping stones
void PaintMarsh(Sheet& sheet);    // boards and pools of the marsh
void PaintBridges(Sheet& sheet);  // bridges and stairs
void PaintCliffs(Sheet& sheet);   // plateau, cliff faces, mountains, cave rock
void PaintTrees(Sheet& sheet);    // woods, great tree, fir, bush, dead tree
void PaintHouse(Sheet& sheet);    // roof, walls, door
void PaintRuins(Sheet& sheet);    // ruined walls, pillar, statue
void PaintShrine(Sheet& sheet);   // rock-cut shrine, gate
void PaintRooms(Sheet& sheet);    // inside walls and floors, carpet
void PaintLastStage(Sheet& sheet);  // marble floor above the stars
void PaintEvents(Sheet& sheet);     // chest, book chest, recovery point
void PaintObjects(Sheet& sheet);    // sign, fence, boulder

}  // namespace orvane::paint::tiles
