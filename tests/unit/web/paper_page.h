// A page that only writes down what it is asked for, for tests.
#pragma once

#include <string>
#include <vector>

#include "src/frontend/web/services/page.h"

namespace orvane {

class PaperPage : public Page {
 public:
  double Now() override { return Time; }
  void Keep(int number, const std::string& name, const std::string& bytes) override {
    Asked.push_back("keep " + std::to_string(number) + " " + name + " " +
                    std::to_string(bytes.size()));
  }
  void LoadSound(const std::string& alias, const std::string& file) override {
    Asked.push_back("load " + alias + " " + file);
  }
  void DropSound(const std::string& alias) override { Asked.push_back("drop " + alias); }
  void StartSound(const std::string& alias, double delay) override {
    Asked.push_back("start " + alias + " " + std::to_string(static_cast<int>(delay)));
  }
  void MoveByPad(Direction direction) override {
    Asked.push_back("move " + std::to_string(static_cast<int>(direction)));
  }
  void AcceptByPad() override { Asked.emplace_back("accept"); }
  void GoBackByPad() override { Asked.emplace_back("back"); }
  void OpenMenusByPad() override { Asked.emplace_back("menus"); }
  void TurnByPad(int step) override { Asked.push_back("turn " + std::to_string(step)); }

  double Time = 0;
  std::vector<std::string> Asked;
};

}  // namespace orvane
