#include "project/Version.h"

#include <gtest/gtest.h>

namespace tarn {
namespace test {

TEST(VersionTest, TheLibraryIsOfTheVersionItsHeadersTell)
{
    EXPECT_EQ(TARN_VERSION, libraryVersion());
}

}  // namespace test
}  // namespace tarn
