#include "project/AddMediaGuard.h"

#include "support/LoadingTest.h"
#include "support/OneOfEachKind.h"
#include "support/Thrown.h"

#include "exceptions/TarnMediaLibException.h"
#include "timeline/AMFile.h"
#include "timeline/Callout.h"
#include "timeline/IMFile.h"

namespace tarn {
namespace test {

namespace {

class AddMediaGuardTest : public LoadingTest
{
protected:
    AddMediaGuardTest()
    {
        Files::instance().set("fake:guarded", {Files::picture(20), Files::sound(20)});
        Files::instance().set("fake:picture", {Files::still()});
    }

    void guard(boost::shared_ptr<Media const> const& media)
    {
        AddMediaGuard::instance()->performGuard(project->sourceBin(), media);
    }
    /// Whether the media is refused for its source.
    bool isForeign(boost::shared_ptr<Media const> const& media)
    {
        try {
            guard(media);
        } catch (TarnMediaLibException const& refused) {
            return refused.what() ==
                   std::string(
                       "attempting to add a media whose source doesn't belong to the project");
        }
        return false;
    }
    boost::shared_ptr<Media> video(boost::shared_ptr<Source const> const& source) const
    {
        return boost::shared_ptr<Media>(new VMFile(source->timeRange(), lock(), source, 0));
    }
    boost::shared_ptr<Media> sound(boost::shared_ptr<Source const> const& source) const
    {
        return boost::shared_ptr<Media>(new AMFile(source->timeRange(), lock(), source, 1, 0u));
    }
    boost::shared_ptr<Media> still(boost::shared_ptr<Source const> const& source) const
    {
        return boost::shared_ptr<Media>(new IMFile(0, 10, lock(), source, 0));
    }
};

}  // namespace

TEST_F(AddMediaGuardTest, MediasOfALoadedSourcePass)
{
    boost::shared_ptr<Source const> const movie = load("fake:guarded");
    boost::shared_ptr<Source const> const picture = load("fake:picture");
    EXPECT_NO_THROW(guard(video(movie)));
    EXPECT_NO_THROW(guard(sound(movie)));
    EXPECT_NO_THROW(guard(still(picture)));
}

TEST_F(AddMediaGuardTest, MediasOfASourceThatIsNotInTheBinAreRefused)
{
    boost::shared_ptr<Source const> const movie = Source::create(project, lock(), "fake:guarded");
    boost::shared_ptr<Source const> const picture = Source::create(project, lock(), "fake:picture");
    EXPECT_TRUE(isForeign(video(movie)));
    EXPECT_TRUE(isForeign(sound(movie)));
    EXPECT_TRUE(isForeign(still(picture)));
}

TEST_F(AddMediaGuardTest, AnotherSourceOfTheSameFileIsStillForeign)
{
    load("fake:guarded");
    EXPECT_TRUE(isForeign(video(Source::create(project, lock(), "fake:guarded"))));
}

TEST_F(AddMediaGuardTest, ASourceTakenOutOfTheBinIsForeignUntilItIsBack)
{
    boost::shared_ptr<Source const> const movie = load("fake:guarded");
    project->undo();
    EXPECT_TRUE(isForeign(video(movie)));
    project->redo();
    EXPECT_FALSE(isForeign(video(movie)));
}

TEST_F(AddMediaGuardTest, FileMediasWithoutASourceAreRefused)
{
    OneOfEachKind const kinds(lock());
    EXPECT_TRUE(isForeign(kinds.video));
    EXPECT_TRUE(isForeign(kinds.sound));
    EXPECT_TRUE(isForeign(kinds.still));
}

TEST_F(AddMediaGuardTest, WhatShowsNoFilePasses)
{
    OneOfEachKind const kinds(lock());
    EXPECT_NO_THROW(guard(kinds.fade));
    EXPECT_NO_THROW(guard(kinds.crossFade));
    EXPECT_NO_THROW(guard(kinds.text));
    EXPECT_NO_THROW(guard(kinds.callout));
}

TEST_F(AddMediaGuardTest, ACalloutPassesEvenOnAForeignSource)
{
    boost::shared_ptr<Source const> const picture = Source::create(project, lock(), "fake:picture");
    boost::shared_ptr<Media> const callout(new Callout(0, 10, lock(), picture, 0));
    EXPECT_NO_THROW(guard(callout));
}

TEST_F(AddMediaGuardTest, BecomingATestRunnerLaterChangesNothing)
{
    AddMediaGuard* const before = AddMediaGuard::instance();
    AddMediaGuard::setIsTestRunner(true);
    EXPECT_EQ(before, AddMediaGuard::instance());
    EXPECT_TRUE(isForeign(OneOfEachKind(lock()).video));
    AddMediaGuard::setIsTestRunner(false);
}

}  // namespace test
}  // namespace tarn
