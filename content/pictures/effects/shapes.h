// The families of effects. A frame outside its range gives the nearest one.
#pragma once

#include "content/pictures/effects/cell.h"

namespace orvane::paint::effects {

Shape FireBall();
Shape Flame(int frame);       // 0 small, 1 tall, 2 dying in smoke
Shape Explosion(int frame);   // 0..6 from a spark to torn smoke
Shape BlastSmoke(int frame);  // 0 thick and glowing, 1 torn: the explosion's end
Shape Atom(int frame);        // 0..2: orbs of the great blast
Shape Sun();
Shape LightRing(int frame);  // 0..2
Shape DarkBurst(int frame);  // 0 full, 1 hollow
Shape DarkOrb(int frame);    // 0 orb, 1 whirl
Shape Sparkle(int frame);    // 0 full star, 1 small, 2 turned, 3 scattered points
Shape LeafStar();
Shape Impact(int frame);  // 0..4 from a glint to flying shards
Shape IceCrystal();
Shape IceGrowing(int frame);   // 0..3
Shape IceBreaking(int frame);  // 0 snow star, 1 shards, 2 glints
Shape RockSpire();
Shape Pillar();
Shape Boulder();
Shape RockShards();
Shape Dust(int frame);   // 0 thick, 1 thin
Shape Slash(int frame);  // 0 begins, 1 full, 2 fades
Shape Thrust();

}  // namespace orvane::paint::effects
