#include "timeline/MediaImpl.h"

#include "datatypes/UpdateCollector.h"
#include "parameters/Attribute.h"
#include "parameters/MTVector.h"
#include "parameters/ParameterInterface.h"
#include "support/Clip.h"
#include "support/CountingObserver.h"
#include "support/ModelTest.h"
#include "timeline/AbstractVisualTrack.h"
#include "timeline/TemporalEditor.h"

#include <boost/smart_ptr/bad_weak_ptr.hpp>

namespace tarn {
namespace test {
namespace {

/// Adds no parameters to those of all medias, which are none.
class BareMedia : public MediaImpl
{
public:
    explicit BareMedia(boost::weak_ptr<ThreadSafe const> const& project)
        : MediaImpl(Range<long long>(30, 100), 0, 1000, project), m_editor(this)
    {}

    void receiveDispatcher(ConstMediaDispatcher*) const override {}
    void receiveDispatcher(MediaDispatcher*) override {}
    bool isInstanceOf(boost::shared_ptr<Source const> const&) const override { return false; }
    BareMedia* clone() const override { return nullptr; }
    MediaEditor& mediaEditor() override { return m_editor; }
    MediaEditor const& mediaEditor() const override { return m_editor; }

private:
    TemporalEditor m_editor;
};

class MediaImplTest : public ClipTest
{
protected:
    boost::shared_ptr<BareMedia> const bare{new BareMedia(project->weak())};
};

class PlacedMediaTest : public ModelTest
{
};

TEST_F(MediaImplTest, HasNoParametersOfItsOwn)
{
    EXPECT_EQ(0, bare->numParameters());
    EXPECT_TRUE(bare->parameterVector()->empty());
    EXPECT_FALSE(bare->paramWithName("opacity"));
}

TEST_F(MediaImplTest, HasTheIdentAsItsOneAttribute)
{
    EXPECT_EQ(1, bare->numAttributes());
    EXPECT_EQ("", bare->identAttribute()->value());
}

TEST_F(MediaImplTest, StartsWithoutTrackLinksEffectsAndEdges)
{
    EXPECT_FALSE(bare->parentTrack().lock());
    EXPECT_TRUE(bare->linkBegin() == bare->linkEnd());
    EXPECT_EQ(0, bare->numEffects());
    EXPECT_EQ(0, bare->leftEdgeModificationLength());
    EXPECT_EQ(0, bare->rightEdgeModificationLength());
    EXPECT_TRUE(bare->leftEdgeModifications().empty());
    EXPECT_TRUE(bare->rightEdgeModifications().empty());
}

TEST_F(MediaImplTest, NamesItsClass)
{
    EXPECT_EQ("MediaImpl", bare->description());
}

TEST_F(MediaImplTest, LeavesAValueAloneWithoutEdges)
{
    EXPECT_EQ(0.25, clip(0, 100)->doubleParametricTransform(nullptr, 0.25, 0.0));
    EXPECT_EQ(0.25, clip(0, 100)->doubleParametricTransform(nullptr, 0.25, 100.0));
}

TEST_F(MediaImplTest, NotifiesOnceForAWholeCollection)
{
    boost::shared_ptr<Clip> const made = clip(0, 100);
    CountingObserver observer;
    made->attach(&observer);
    {
        UpdateCollector::Collection const collection;
        made->move(1);
        made->move(2);
        EXPECT_EQ(0, observer.calls());
    }
    EXPECT_EQ(1, observer.calls());
    made->detach(&observer);
}

TEST_F(MediaImplTest, OutlivesItsProject)
{
    boost::shared_ptr<Clip> made = clip(0, 100);
    project.reset();
    EXPECT_THROW(made->scalar(), boost::bad_weak_ptr);
    EXPECT_THROW(made->mediaRange(), boost::bad_weak_ptr);
    EXPECT_THROW(made->trimEndLimit(), boost::bad_weak_ptr);
    EXPECT_NO_THROW(made.reset());
}

TEST_F(PlacedMediaTest, KnowsItsTrackWhileItLiesThere)
{
    given("V1: aaa");
    boost::shared_ptr<Media> const placed = media("V1.a");
    EXPECT_EQ(track("V1"), placed->parentTrack().lock());
    EXPECT_EQ(track("V1"), boost::shared_ptr<Media const>(placed)->parentTrack().lock());
    project->execute(remove("V1.a"));
    EXPECT_FALSE(placed->parentTrack().lock());
}

TEST_F(PlacedMediaTest, SettingTheTrackDoesNotNotify)
{
    given("V1: aaa");
    boost::shared_ptr<Media> const fresh = freshVideo('b', 2);
    CountingObserver observer;
    fresh->attach(&observer);
    fresh->setParentTrack(track("V1"));
    EXPECT_EQ(0, observer.calls());
    fresh->detach(&observer);
}

TEST_F(PlacedMediaTest, DoesNotKeepItsTrackAlive)
{
    given("V1: aaa / V2: b");
    boost::shared_ptr<Media> const fresh = freshVideo('b', 2);
    boost::shared_ptr<Track> own(track("V2")->clone());
    fresh->setParentTrack(own);
    own.reset();
    EXPECT_TRUE(fresh->parentTrack().expired());
}

}  // namespace
}  // namespace test
}  // namespace tarn
