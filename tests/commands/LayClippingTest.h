#pragma once

#include "commands/CopySelectClippingCmd.h"
#include "support/ClippingText.h"
#include "support/ModelTest.h"

namespace tarn {
namespace test {

/// For the commands that lay the medias of a clipping on tracks.
class LayClippingTest : public ModelTest
{
protected:
    /// What a selection gives; the history then holds its copy alone.
    boost::shared_ptr<Clipping> clippingOf(
        std::vector<boost::shared_ptr<Media const>> const& medias) const
    {
        auto const copy = CopySelectClippingCmd::create(timeline(), medias, "choice");
        project->execute(copy);
        return copy->clipping();
    }
    /// From and to which track, by number.
    template <class LayCmd>
    void mapPicture(LayCmd& command, Clipping& clipping, unsigned int from, unsigned int to) const
    {
        command.template addTrackMap<AbstractVisualTrack>(visualTrackOf(clipping, from),
                                                          visualMixer()->trackAtIndex(to));
    }
    template <class LayCmd>
    void mapSound(LayCmd& command, Clipping& clipping, unsigned int from, unsigned int to) const
    {
        command.template addTrackMap<AudioTrack>(audioTrackOf(clipping, from),
                                                 audioMixer()->trackAtIndex(to));
    }
};

}  // namespace test
}  // namespace tarn
