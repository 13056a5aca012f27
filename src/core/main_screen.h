// The one window that is always there: the title, the field and the menu bar.
#pragma once

#include "src/core/map.h"
#include "src/ui/controls.h"
#include "src/ui/screen.h"
#include "src/ui/stage.h"

namespace orvane {

struct Game;

// The map that a picture shows beneath all that is drawn over it, and the sheet of its tiles.
struct DrawnMap {
  MapTiles Tiles;
  Surface Sheet;
};

class MainScreen : public Screen {
 public:
  MainScreen(Stage& stage, Game& game);

  PictureBox FieldPicture;  // the title picture, then the field
  DrawnMap OnField;         // what the field's frames have drawn there
  Label TitleShadow;
  Label TitleLabel;
  Label TitleReading;
  Label Copyright;
  CommandButton BeginButton;
  PictureBox MessageWindow;
  ControlArray<Label> MessageLines{"Label6"};
  Label StoryLine;
  PictureBox SpeakerFace;
  Label GoOnMark;
  PictureBox StatusPanel;
  PictureBox ManFace;
  PictureBox WomanFace;
  ControlArray<Label> StatusValues{"Label5"};
  PictureBox ManSheet;
  PictureBox WomanSheet;
  PictureBox TileSheet;
  MenuItem FileMenu, LoadItem, SaveItem, FileSeparator, QuitItem;
  MenuItem ItemMenu, EquipmentItem, BagItem;
  MenuItem InfoMenu, HeroesItem, SettingsItem, InfoSeparator, VersionItem;
  Timer WalkTimer;     // the field's frame
  Timer MessageTimer;  // a pickup's message
  Timer StoryTimer;    // a story scene

 protected:
  void OnLoad() override;
  void OnActivate(bool entered) override;
  void OnClose() override;

 private:
  Game& game_;
};

}  // namespace orvane
