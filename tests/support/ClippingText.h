#pragma once

#include "clipbin/ClipBoard.h"
#include "clipbin/Clipping.h"
#include "project/InternalProject.h"
#include "timeline/AudioMixer.h"
#include "timeline/AudioTrack.h"
#include "timeline/Media.h"
#include "timeline/Timeline.h"
#include "timeline/VisualMixer.h"
#include "timeline/VisualTrack.h"

#include <sstream>
#include <string>

namespace tarn {
namespace test {

inline void writePlaces(std::ostream& out, char kind, Mixer const& mixer)
{
    for (unsigned int i = 0; i < mixer.numTracks(); ++i) {
        out << kind << i + 1 << ":";
        boost::shared_ptr<Track const> const track = mixer.trackAtIndex(i);
        for (auto media = track->mediaBegin(); media != track->mediaEnd(); ++media) {
            out << ' ' << media->second->trackRange();
        }
        out << '\n';
    }
}

/// Where the medias of a clipping lie, a line a track: "V1: (0,10) (30,20)\nA1: (0,10)\n".
inline std::string placesIn(Clipping const& clipping)
{
    std::ostringstream out;
    Timeline const& timeline = *clipping.timeline();
    if (timeline.hasVisualMixer()) {
        writePlaces(out, 'V', *timeline.visualMixer());
    }
    if (timeline.hasAudioMixer()) {
        writePlaces(out, 'A', *timeline.audioMixer());
    }
    return out.str();
}

/// A clipping's tracks and medias by number, the first is 0.
inline boost::shared_ptr<AbstractVisualTrack> visualTrackOf(Clipping& clipping, unsigned int index)
{
    return clipping.timeline()->visualMixer()->trackAtIndex(index);
}
inline boost::shared_ptr<AudioTrack> audioTrackOf(Clipping& clipping, unsigned int index)
{
    return clipping.timeline()->audioMixer()->trackAtIndex(index);
}
inline boost::shared_ptr<Media> firstMediaOf(Track& track)
{
    return track.mediaBegin()->second;
}

/// How many clippings are on the project's board.
inline std::size_t numClippings(InternalProject& project)
{
    return project.clipBoard()->size();
}

}  // namespace test
}  // namespace tarn
