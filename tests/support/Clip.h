#pragma once

#include "support/FakeProject.h"
#include "timeline/VideoMedia.h"

#include <boost/shared_ptr.hpp>
#include <gtest/gtest.h>

namespace tarn {
namespace test {

/// A moving picture of 640 x 480 whose media limits a test chooses, and which lies on no track.
class Clip : public VideoMedia
{
public:
    Clip(Range<long long> const& sourceRange, double startLimit, double endLimit,
         boost::weak_ptr<ThreadSafe const> const& project)
        : VideoMedia(sourceRange, startLimit, endLimit, project)
    {}

    double width() const override { return 640; }
    double height() const override { return 480; }
    void receiveDispatcher(ConstMediaDispatcher*) const override {}
    void receiveDispatcher(MediaDispatcher*) override {}
    bool isInstanceOf(boost::shared_ptr<Source const> const&) const override { return false; }
    Clip* clone() const override { return cloneOf(*this); }

private:
    friend class MediaImpl;

    Clip(Clip const& other) = default;
};

/// Medias on their own, with a project that is no more than a lock.
class ClipTest : public ::testing::Test
{
protected:
    boost::shared_ptr<Clip> clip(long long start, long long duration, double startLimit = 0,
                                 double endLimit = 1000) const
    {
        return boost::shared_ptr<Clip>(
            new Clip(Range<long long>(start, duration), startLimit, endLimit, project->weak()));
    }

    boost::shared_ptr<FakeProject> project = FakeProject::create();
};

}  // namespace test
}  // namespace tarn
