#pragma once

#include "support/FakeStatsLoader.h"
#include "support/ModelTest.h"

#include "clipbin/Source.h"
#include "clipbin/SourceBin.h"
#include "clipbin/SourceBinSentry.h"
#include "commands/LoadSourceCmd.h"
#include "timeline/AudioMixer.h"
#include "timeline/AudioTrack.h"
#include "timeline/Timeline.h"
#include "timeline/VMFile.h"
#include "timeline/VisualMixer.h"
#include "timeline/VisualTrack.h"

#include <boost/make_shared.hpp>
#include <boost/pointer_cast.hpp>

#include <string>
#include <vector>

namespace tarn {
namespace test {

/// Accepts or refuses all files, and counts how often it is asked.
class FixedSentry : public SourceBinSentry
{
public:
    explicit FixedSentry(bool accepts) : m_accepts(accepts) {}

    std::string description() const override { return "fixed"; }
    bool isAcceptable(MediaFileStats const*) const override
    {
        ++m_calls;
        return m_accepts;
    }
    int calls() const { return m_calls; }

private:
    bool m_accepts;
    mutable int m_calls = 0;
};

/// For tests that load files, which exist only by name.
class LoadingTest : public ModelTest
{
protected:
    using Files = FakeStatsLoader;

    boost::shared_ptr<Source const> load(std::string const& file)
    {
        boost::shared_ptr<LoadSourceCmd> const command = LoadSourceCmd::create(file);
        project->execute(command);
        return command->source();
    }
    /// The bin's sources in order.
    std::vector<boost::shared_ptr<Source const>> bin() const
    {
        boost::shared_ptr<SourceBin> const sources = project->sourceBin();
        return std::vector<boost::shared_ptr<Source const>>(sources->begin(), sources->end());
    }
    std::vector<boost::shared_ptr<Source const>> noSources() const { return {}; }
    std::vector<boost::shared_ptr<Source const>> only(
        boost::shared_ptr<Source const> const& one) const
    {
        return {one};
    }
    /// A media of the source as long as all of it, added to a track.
    boost::shared_ptr<VMFile> place(boost::shared_ptr<Source const> const& shown,
                                    std::string const& trackName, long long cells)
    {
        boost::shared_ptr<VMFile> const made(new VMFile(shown->timeRange(), lock(), shown, 0));
        project->execute(add(trackName, made, cells));
        return made;
    }
    static boost::shared_ptr<VMFile> prototype(boost::shared_ptr<Source const> const& of,
                                               unsigned int visualTrack = 0)
    {
        boost::shared_ptr<Track> const track =
            of->timeline()->visualMixer()->trackAtIndex(visualTrack);
        return boost::dynamic_pointer_cast<VMFile>(track->mediaBegin()->second);
    }
    static boost::shared_ptr<AbstractVisualTrack const> visualTrack(
        boost::shared_ptr<Source const> const& of, unsigned int index = 0)
    {
        return boost::dynamic_pointer_cast<AbstractVisualTrack const>(
            of->timeline()->visualMixer()->trackAtIndex(index));
    }
    static boost::shared_ptr<AudioTrack const> audioTrack(boost::shared_ptr<Source const> const& of,
                                                          unsigned int index = 0)
    {
        return boost::dynamic_pointer_cast<AudioTrack const>(
            of->timeline()->audioMixer()->trackAtIndex(index));
    }
    boost::shared_ptr<AbstractVisualTrack const> visualTrack(std::string const& name) const
    {
        return boost::dynamic_pointer_cast<AbstractVisualTrack const>(track(name));
    }
    boost::shared_ptr<AudioTrack const> audioTrack(std::string const& name) const
    {
        return boost::dynamic_pointer_cast<AudioTrack const>(track(name));
    }
};

}  // namespace test
}  // namespace tarn
