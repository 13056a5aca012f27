// Steps of a play that several tests take.
#pragma once

#include <functional>

#include "tests/windows/session.h"

namespace orvane::test {

// From the title to the opening scene, by the name entry.
void EnterNames(Session& session);
// Clicks through a scene until the party can walk.
void HearScene(Session& session);

// Loads the save in that row of the list, on the title, and waits for the party in the field.
void LoadSave(Session& session, int row);

// The party stands still.
bool Rests(Session& session);
// Holds an arrow key until the party has gone 16 pixels, or until the condition holds, then
// releases it and lets the party come to rest.
void Walk(Session& session, Qt::Key key);
void Walk(Session& session, Qt::Key key, const std::function<bool()>& until);
// Walks to and fro until a battle comes, and waits for its first command.
void FindBattle(Session& session);

// Walks up into the dragon's strip, and waits for the battle's first command.
void MeetDragon(Session& session);

// Waits until the acting hero can be given a command.
void AwaitCommand(Session& session);
// An attack of the acting hero on a row of the targets.
void Strike(Session& session, int row = 1);
// His last technique and her blows until the battle is won, and the way out of it.
void WinByLastTechnique(Session& session);
// Whether the panel of a victory stands.
bool IsWon(Session& session);
// Leaves the battle by a click beside the panel.
void LeaveVictory(Session& session);

// Asks by the window's own close control whether to quit, and answers with a key.
void AskToQuit(Session& session, Qt::Key answer);
// The same to the end, which must be in good order.
void Quit(Session& session);

}  // namespace orvane::test
