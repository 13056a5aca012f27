// What the page reads.
#include "src/frontend/web/mirror/json.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace orvane {
namespace {

TEST(JsonTest, WritesObjectsListsAndWhatIsAddedBehind) {
  std::string out;
  {
    Json json(out, Json::Form::Object);
    json.Add("text", "龍");
    json.Add("yes", true);
    json.Add("number", -12);
    json.AddRaw("list", "[1]");
  }
  EXPECT_EQ(out, R"({"text":"龍","yes":true,"number":-12,"list":[1]})");
  out.pop_back();
  { Json(out, Json::Form::Rest).Add("more", 1); }
  EXPECT_EQ(out, R"({"text":"龍","yes":true,"number":-12,"list":[1],"more":1})");
  std::string list;
  {
    Json json(list, Json::Form::List);
    json.Add(std::string_view("a"));
    json.Add(false);
  }
  EXPECT_EQ(list, R"(["a",false])");
}

TEST(JsonTest, NoSignOfATextEndsItEarly) {
  std::string out;
  { Json(out, Json::Form::List).Add(std::string_view("a\"b\\c\nd\x01")); }
  EXPECT_EQ(out, "[\"a\\\"b\\\\c\\u000ad\\u0001\"]");
}

TEST(JsonTest, FractionsAreOfThousandthsAndAbsurdPlacesFarAway) {
  const auto written = [](double value) {
    std::string out;
    { Json(out, Json::Form::Object).Add("v", value); }
    return out;
  };
  EXPECT_EQ(written(12), R"({"v":12})");
  EXPECT_EQ(written(0.5), R"({"v":0.500})");
  EXPECT_EQ(written(-0.0625), R"({"v":-0.063})");
  EXPECT_EQ(written(-12.007), R"({"v":-12.007})");
  EXPECT_EQ(written(-0.0001), R"({"v":0})");
  EXPECT_EQ(written(1e300), R"({"v":30000})");
  EXPECT_EQ(written(-1e300), R"({"v":-30000})");
  EXPECT_EQ(written(std::numeric_limits<double>::quiet_NaN()), R"({"v":30000})");
}

}  // namespace
}  // namespace orvane
