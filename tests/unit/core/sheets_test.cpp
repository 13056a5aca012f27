#include "src/core/sheets.h"

#include <gtest/gtest.h>

#include "src/base/error.h"

namespace orvane {
namespace {

TEST(Sheets, AreFoundByNameAndOneThatIsNotThereIsAnError) {
  EXPECT_TRUE(HasSheet("tiles"));
  EXPECT_GT(Sheet("tiles").Width(), 0);
  EXPECT_FALSE(HasSheet("nothing"));
  try {
    Sheet("nothing");
    ADD_FAILURE() << "no error";
  } catch (const RunError& error) {
    EXPECT_EQ(error.Kind, ErrorKind::File);
    EXPECT_EQ(error.Subject, "nothing");
  }
}

}  // namespace
}  // namespace orvane
