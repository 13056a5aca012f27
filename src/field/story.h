// The story: scenes of lines that the player steps through with clicks, and what their ends bring.
#pragma once

namespace orvane {

struct Game;

// Fills StoryText.
void SetStoryText(Game& game);

// One tick of Main's StoryTimer: shows the present line and its speaker.
void StoryTick(Game& game);

// A click on the field: closes a message or steps the story on.
void FieldClick(Game& game);

}  // namespace orvane
