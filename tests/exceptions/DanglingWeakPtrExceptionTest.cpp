#include "exceptions/DanglingWeakPtrException.h"
#include "timeline/TimelineFwd.h"

#include <gtest/gtest.h>

namespace tarn {
namespace test {

TEST(DanglingWeakPtrExceptionTest, HasNoText)
{
    EXPECT_STREQ("", DanglingWeakPtrException<Media const>().what());
}

TEST(DanglingWeakPtrExceptionTest, TellsWhatIsGoneByItsType)
{
    EXPECT_THROW(throw DanglingWeakPtrException<Track const>(),
                 DanglingWeakPtrException<Track const>);
    EXPECT_THROW(throw DanglingWeakPtrException<Track const>(), TarnMediaLibException);
}

}  // namespace test
}  // namespace tarn
