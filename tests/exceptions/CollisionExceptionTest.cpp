#include "exceptions/CollisionException.h"

#include <string>
#include <type_traits>

#include <gtest/gtest.h>

namespace tarn {
namespace test {

TEST(CollisionExceptionTest, CarriesTheSharedList)
{
    boost::shared_ptr<CollisionException::MediaList> const medias(
        new CollisionException::MediaList);
    EXPECT_EQ(medias, CollisionException(medias).medias());
}

TEST(CollisionExceptionTest, TheTextBeginsWithItsName)
{
    CollisionException const exception(boost::shared_ptr<CollisionException::MediaList>{});
    EXPECT_EQ(0u, std::string(exception.what()).find("Collision exception."));
}

TEST(CollisionExceptionTest, IsAFailureOfTheLibrary)
{
    EXPECT_THROW(throw CollisionException(boost::shared_ptr<CollisionException::MediaList>{}),
                 TarnMediaLibException);
}

TEST(CollisionExceptionTest, CopyingDoesNotThrow)
{
    EXPECT_TRUE(std::is_nothrow_copy_constructible<CollisionException>::value);
}

}  // namespace test
}  // namespace tarn
