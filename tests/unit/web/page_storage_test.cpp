// The files of a page against a model of them: several are replaced at once, and the page answers
// late, in any order, with a failure, twice, or never.
#include "src/frontend/web/services/page_storage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "tests/unit/web/paper_page.h"

namespace orvane {
namespace {

// What the page has been asked to keep and has not answered.
struct Wish {
  int Number = 0;
  std::string Name;
  std::string Bytes;
};

class WishingPage : public PaperPage {
 public:
  void Keep(int number, const std::string& name, const std::string& bytes) override {
    Wishes.push_back({number, name, bytes});
  }
  std::vector<Wish> Wishes;
};

class PageStorageModel {
 public:
  explicit PageStorageModel(std::uint32_t seed) : random_(seed) {
    for (int slot = 0; slot < 3; ++slot) files_[Name(slot)] = "as it comes";
    storage_.Files = files_;
  }

  void Run() {
    for (int step = 0; step < 40; ++step) {
      switch (random_() % 4) {
        case 0:
        case 1:
          Ask();
          break;
        case 2:
          Answer();
          break;
        default:
          AnswerAgain();
      }
      Look();
    }
  }

  int Answered() const { return answered_; }
  int AtOnce() const { return at_once_; }  // the most replacements that were under way together

 private:
  static std::string Name(int slot) { return "Save0" + std::to_string(slot) + ".sav"; }

  // Nothing changes, and nothing is told, before the page has answered.
  void Ask() {
    const std::string name = Name(static_cast<int>(random_() % 3));
    const std::string bytes = "record " + std::to_string(random_());
    const size_t waiting = page_.Wishes.size();
    const size_t number = told_.size();
    told_.emplace_back();
    const bool asks_again = random_() % 4 == 0;
    storage_.Replace(name, bytes, [=, this](const std::string& failure) {
      told_[number].push_back(failure);
      // What follows a replacement may be another one.
      if (asks_again) Ask();
    });
    ASSERT_EQ(page_.Wishes.size(), waiting + 1);
    EXPECT_EQ(page_.Wishes.back().Name, name);
    EXPECT_EQ(page_.Wishes.back().Bytes, bytes);
    numbers_[page_.Wishes.back().Number] = number;
    at_once_ = std::max(at_once_, static_cast<int>(page_.Wishes.size()));
  }

  void Answer() {
    if (page_.Wishes.empty()) return;
    const auto at =
        page_.Wishes.begin() + static_cast<std::ptrdiff_t>(random_() % page_.Wishes.size());
    const Wish wish = *at;
    page_.Wishes.erase(at);
    const std::string failure = random_() % 3 == 0 ? "full" : "";
    if (failure.empty()) files_[wish.Name] = wish.Bytes;
    expected_[numbers_.at(wish.Number)] = {failure};
    last_ = wish.Number;
    ++answered_;
    storage_.Kept(wish.Number, failure);
  }

  // A second answer is none, nor one to what nobody has asked.
  void AnswerAgain() {
    storage_.Kept(last_, random_() % 2 == 0 ? "late" : "");
    storage_.Kept(1000000, "");
  }

  void Look() const {
    for (const auto& [name, bytes] : files_) EXPECT_EQ(storage_.Read(name), bytes);
    EXPECT_EQ(storage_.List("*").size(), files_.size());
    for (size_t number = 0; number < told_.size(); ++number) {
      const auto expected = expected_.find(number);
      EXPECT_EQ(told_[number],
                expected == expected_.end() ? std::vector<std::string>() : expected->second);
    }
  }

  std::mt19937 random_;
  WishingPage page_;
  PageStorage storage_{page_};
  std::map<std::string, std::string> files_;             // as they must be
  std::vector<std::vector<std::string>> told_;           // of each replacement
  std::map<size_t, std::vector<std::string>> expected_;  // to have been told of it
  std::map<int, size_t> numbers_;                        // which replacement the page means
  int last_ = -1;
  int answered_ = 0;
  int at_once_ = 0;
};

TEST(PageStorage, IsAsItsModelHoweverThePageAnswers) {
  int answered = 0;
  int at_once = 0;
  for (std::uint32_t seed = 1; seed <= 200 && !testing::Test::HasFailure(); ++seed) {
    SCOPED_TRACE(seed);
    PageStorageModel model(seed);
    model.Run();
    answered += model.Answered();
    at_once = std::max(at_once, model.AtOnce());
  }
  EXPECT_GT(answered, 1000);
  EXPECT_GT(at_once, 5);
}

}  // namespace
}  // namespace orvane
