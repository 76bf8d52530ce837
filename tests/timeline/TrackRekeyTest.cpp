#include "commands/CommandHistory.h"
#include "commands/MoveCmd.h"
#include "commands/RemoveMediaCmd.h"
#include "commands/RippleMoveCmd.h"
#include "exceptions/CollisionException.h"
#include "support/CountingObserver.h"
#include "support/ModelTest.h"
#include "timeline/Media.h"
#include "timeline/Track.h"

#include <list>
#include <memory>
#include <string>
#include <vector>

namespace tarn {
namespace test {
namespace {

/// A media's entry on its track gets another key with each edit of its start. Nobody may notice
/// more of that than the key.
class TrackRekeyTest : public ModelTest
{
protected:
    ~TrackRekeyTest() override
    {
        for (Watch const& watch : m_watches)
            watch.subject->detach(watch.observer.get());
    }

    void watch(std::string const& name, boost::shared_ptr<Subject const> const& subject)
    {
        auto const observer =
            std::make_shared<CountingObserver>([this, name] { m_log += name + " "; });
        subject->attach(observer.get());
        m_watches.push_back(Watch{subject, observer});
    }
    /// The medias by their names, their tracks and the history.
    void watchAll(std::vector<std::string> const& medias)
    {
        for (std::string const& name : medias)
            watch(name, media(name));
        watch("track", track("V1"));
        watch("history", project->commandHistory());
    }
    std::string logOf(boost::shared_ptr<Command> const& command)
    {
        m_log.clear();
        project->execute(command);
        return m_log;
    }
    std::string logOfUndo()
    {
        m_log.clear();
        project->undo();
        return m_log;
    }
    std::vector<long long> keys() const
    {
        std::vector<long long> result;
        for (auto const& entry : track("V1")->medias())
            result.push_back(entry.first);
        return result;
    }

private:
    struct Watch
    {
        boost::shared_ptr<Subject const> subject;
        std::shared_ptr<CountingObserver> observer;
    };

    std::list<Watch> m_watches;
    std::string m_log;
};

using Keys = std::vector<long long>;

TEST_F(TrackRekeyTest, TheEntryIsTheSameOneUnderAnotherKey)
{
    given("V1: aa..bb..cc");
    boost::shared_ptr<Media> const* const entry = &track("V1")->medias().at(40);
    project->execute(move("V1.b", 1));
    EXPECT_EQ((Keys{0, 50, 80}), keys());
    EXPECT_EQ(entry, &track("V1")->medias().at(50));
    EXPECT_EQ(media("V1.b"), *entry);
}

TEST_F(TrackRekeyTest, AMediaThatLiesNowhereCanBeFetchedAheadToo)
{
    given("V1: aa..bb");
    boost::shared_ptr<Media const> const b = media("V1.b");
    project->execute(RemoveMediaCmd<Media>::create(track("V1"), b));
    b->fetchAhead();
    b->fetchEntryAhead();
    EXPECT_EQ("V1: aa", strip());
}

TEST_F(TrackRekeyTest, AMoveKeepsNoShareInTheMedia)
{
    given("V1: aa..bb..cc");
    long const before = media("V1.b").use_count();
    project->execute(move("V1.b", 1));
    project->undo();
    project->commandHistory()->dropRedoCommands();
    EXPECT_EQ(before, media("V1.b").use_count());
}

TEST_F(TrackRekeyTest, MovesUpToWhatLiesBesideAndNoFurther)
{
    given("V1: aa..bb..cc");
    EXPECT_TRUE(edits(move("V1.b", -2), "V1: aabb....cc"));
    EXPECT_TRUE(edits(move("V1.b", 4), "V1: aa....bbcc"));
    EXPECT_TRUE(refuses<CollisionException>(MoveCmd::create(track("V1"), media("V1.b"), 1)));
    EXPECT_TRUE(edits(move("V1.b", -4), "V1: aabb....cc"));
    EXPECT_TRUE(refuses<CollisionException>(MoveCmd::create(track("V1"), media("V1.b"), -1)));
}

TEST_F(TrackRekeyTest, MovesPastOthersToo)
{
    given("V1: ..aa..bb");
    EXPECT_TRUE(edits(move("V1.a", 6), "V1: ......bbaa"));
    EXPECT_TRUE(edits(move("V1.b", -6), "V1: bb......aa"));
    EXPECT_EQ((Keys{0, 80}), keys());
}

TEST_F(TrackRekeyTest, AMoveByItsOwnLengthOrLessIsNotInItsOwnWay)
{
    given("V1: aaaa.....b");
    EXPECT_TRUE(edits(move("V1.a", 2), "V1: ..aaaa...b"));
    EXPECT_TRUE(edits(move("V1.a", -1), "V1: .aaaa....b"));
}

TEST_F(TrackRekeyTest, ATrimOfTheStartGivesAnotherKeyAndOneOfTheEndDoesNot)
{
    given("V1: aa.bbbb.cc");
    EXPECT_TRUE(edits(trimStart("V1.b", 2), "V1: aa...bb.cc"));
    EXPECT_EQ((Keys{0, 50, 80}), keys());
    EXPECT_TRUE(edits(trimStart("V1.b", -3), "V1: aabbbbb.cc"));
    EXPECT_TRUE(edits(trimEnd("V1.b", 3), "V1: aabb....cc"));
    EXPECT_EQ((Keys{0, 20, 80}), keys());
    EXPECT_TRUE(refuses<CollisionException>(trimStart("V1.b", -1)));
    EXPECT_TRUE(refuses<CollisionException>(trimEnd("V1.b", -5)));
}

TEST_F(TrackRekeyTest, TheMediaIsToldOfItAndThenTheHistory)
{
    given("V1: aa..bb..cc");
    watchAll({"V1.a", "V1.b", "V1.c"});
    EXPECT_EQ("V1.b history ", logOf(move("V1.b", 1)));
    EXPECT_EQ("V1.b history ", logOfUndo());
    EXPECT_EQ("V1.b history ", logOf(trimStart("V1.b", 1)));
    EXPECT_EQ("V1.b history ", logOf(trimEnd("V1.b", -1)));
}

TEST_F(TrackRekeyTest, LinkedMediasAreToldBehindTheOneThatWasMoved)
{
    given("A1: ..aa / V1: ..aa");
    watchAll({"A1.a", "V1.a"});
    EXPECT_EQ("V1.a A1.a history ", logOf(move("V1.a", 1)));
    EXPECT_EQ("V1.a A1.a history ", logOfUndo());
}

TEST_F(TrackRekeyTest, ARippleTellsEachMediaOnceInTheOrderOfItsMoves)
{
    given("V1: aabbcc");
    watchAll({"V1.a", "V1.b", "V1.c"});
    EXPECT_EQ("V1.c V1.b V1.a history ",
              logOf(RippleMoveCmd::create(track("V1"), media("V1.a"), 5)));
    EXPECT_EQ("V1.a V1.b V1.c history ", logOfUndo());
    EXPECT_EQ((Keys{0, 20, 40}), keys());
}

TEST_F(TrackRekeyTest, AnObserverMayEditTheTrackInTheMiddleOfAnEditWithoutCommands)
{
    given("V1: aa..bb..cc");
    CountingObserver observer;
    observer.setAction([this, &observer] {
        media("V1.b")->detach(&observer);
        track("V1")->removeMedia(media("V1.c"), false);
    });
    media("V1.b")->attach(&observer);
    track("V1")->move(media("V1.b"), 10, true);
    EXPECT_EQ((Keys{0, 50}), keys());
    EXPECT_EQ(media("V1.b"), track("V1")->medias().at(50));
}

}  // namespace
}  // namespace test
}  // namespace tarn
