// A fixture: the whole front end with its loop of messages, and deeds for when it runs.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <utility>

#include "src/frontend/windows/app/front.h"
#include "src/frontend/windows/system/windows_api.h"
#include "src/platform/folder_storage.h"
#include "src/platform/quiet_services.h"

namespace orvane {

class RunningFront : public testing::Test {
 protected:
  ~RunningFront() override {
    for (const auto& [timer, deed] : Planned()) KillTimer(nullptr, timer);
    Planned().clear();
  }

  // Does something later, from whatever loop of messages runs then, by the system's timers.
  static void After(UINT milliseconds, std::function<void()> deed) {
    Planned()[SetTimer(nullptr, 0, milliseconds, &DoPlanned)] = std::move(deed);
  }

  Control& On(const char* screen, const char* name) {
    return *program_.TheStage().Find(screen)->Find(name);
  }
  // Opens the dialog for the names.
  void AskNames() {
    front_.Send([this](Program& program) { program.Click(On("Main", "Command1")); });
  }
  // From the title to the field, where the walk's timer ticks.
  void Begin() {
    program_.Click(On("Main", "Command1"));
    program_.EnterText(static_cast<TextBox&>(On("InputName", "Text1(0)")), "カイ");
    program_.EnterText(static_cast<TextBox&>(On("InputName", "Text1(1)")), "リナ");
    program_.Confirm(*program_.TheStage().Find("InputName"));
    for (int line = 0; line < 20; ++line) program_.Click(On("Main", "Picture1"));
    ASSERT_TRUE(static_cast<Timer&>(On("Main", "Timer1")).IsEnabled());
  }
  // Runs the game until the session ends, which it must.
  int Run() {
    constexpr UINT longest = 10000;  // ms that a run may take
    After(longest, [this] {
      ADD_FAILURE() << "the game goes on";
      front_.SessionEnds();
    });
    return front_.Run();
  }

  // With the files that every start reads, and a slot.
  static QuietServices Built() {
    const FolderStorage built(ORVANE_GAME_FOLDER);
    QuietServices services;
    for (const char* name : {"Item.dat", "Mapdata/map3-3.dat"}) {
      services.Files.Files[name] = built.Read(name).value_or("");
    }
    services.Files.Files["Save01.sav"] = "";
    return services;
  }

  QuietServices services_ = Built();
  Program program_{services_.All()};
  Translator texts_;
  Front front_{program_, texts_, 1.0, L"front test"};

 private:
  using Deeds = std::map<UINT_PTR, std::function<void()>>;

  static Deeds& Planned() {
    static Deeds planned;
    return planned;
  }
  static void CALLBACK DoPlanned(HWND /*window*/, UINT /*message*/, UINT_PTR timer,
                                 DWORD /*time*/) {
    KillTimer(nullptr, timer);
    const auto node = Planned().extract(timer);
    if (!node.empty()) node.mapped()();
  }
};

}  // namespace orvane
