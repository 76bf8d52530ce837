#include "fuzz/NullEdits.h"

#include "fuzz/Stage.h"

#include "exceptions/TarnMediaLibException.h"
#include "timeline/Media.h"
#include "timeline/Track.h"

namespace tarn {
namespace test {

/// With its index among the edits.
class NullEditsTest : public Stage, public ::testing::WithParamInterface<std::size_t>
{
};

TEST_P(NullEditsTest, IsRefusedAndChangesNothing)
{
    begin("V1: aaa..bb / A1: aaa..bb");
    NullEdit const& edit = nullEdits()[GetParam()];
    SCOPED_TRACE(edit.text);
    EXPECT_TRUE(refuses<TarnMediaLibException>(edit.make(*this, track("V1"), media("V1.a"))));
}

INSTANTIATE_TEST_SUITE_P(EachArgument, NullEditsTest,
                         ::testing::Range(std::size_t(0), nullEdits().size()));

}  // namespace test
}  // namespace tarn
