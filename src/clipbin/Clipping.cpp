#include "clipbin/Clipping.h"

#include "datatypes/SaturatedArithmetic.h"
#include "datatypes/XmlText.h"
#include "exceptions/DanglingWeakPtrException.h"
#include "exceptions/ValueException.h"
#include "parameters/Attribute.h"
#include "project/ReadWriteMutex.h"
#include "timeline/AudioMixer.h"
#include "timeline/Media.h"
#include "timeline/Timeline.h"
#include "timeline/Track.h"
#include "timeline/VisualMixer.h"

#include <algorithm>
#include <limits>
#include <sstream>
#include <utility>
#include <vector>

namespace tarn {

namespace {

using Clones = std::vector<boost::shared_ptr<Media const>>;
using OriginalTracks = std::map<boost::shared_ptr<Track const>, boost::shared_ptr<Track const>>;

template <class T>
boost::shared_ptr<T> lockTrack(boost::weak_ptr<T> const& track)
{
    boost::shared_ptr<T> const locked = track.lock();
    if (!locked)
        throw DanglingWeakPtrException<Track const>();
    return locked;
}

void checkClonesNotEmpty(MediaCloneMap const& clones, std::string const& name)
{
    if (clones.empty()) {
        throw ValueException<std::string>("trying to make a clipping with no medias", name);
    }
}

/// The index within the track's own mixer.
int findTrackPosition(Timeline const& timeline, boost::shared_ptr<Track const> const& track)
{
    ReadWriteMutex::ScopedReadLock lock(timeline.mutex());
    int position = -1;
    if (boost::shared_ptr<VisualMixer> const mixer = timeline.visualMixer())
        position = mixer->indexForTrack(track);
    if (position != -1)
        return position;
    boost::shared_ptr<AudioMixer> const mixer = timeline.audioMixer();
    return mixer ? mixer->indexForTrack(track) : -1;
}

void normalizeTempPositions(Clipping::TrackPositions const& temporary, int minimum,
                            Clipping::TrackPositions* positions)
{
    for (Clipping::TrackPositions::value_type const& entry : temporary)
        (*positions)[entry.first] = entry.second - minimum;
}

void genTrackPositions(Timeline const& timeline, OriginalTracks const& tracks,
                       Clipping::TrackPositions* positions)
{
    int minimum = std::numeric_limits<int>::max();
    Clipping::TrackPositions temporary;
    for (OriginalTracks::value_type const& entry : tracks) {
        int const position = findTrackPosition(timeline, entry.second);
        temporary[entry.first] = position;
        minimum = std::min(minimum, position);
    }
    normalizeTempPositions(temporary, minimum, positions);
}

void genTrackPositions(Timeline const& timeline, MediaCloneMap const& clones,
                       Clipping::TrackPositions* positions)
{
    OriginalTracks tracks;
    boost::shared_ptr<Track const> last;
    for (MediaCloneMap::value_type const& entry : clones) {
        // All that lie on one track are copies from one track.
        if (last && entry.second->isPlacedOn(last))
            continue;
        boost::shared_ptr<Track const> const original = lockTrack(entry.first->parentTrack());
        last = lockTrack(entry.second->parentTrack());
        tracks[last] = original;
    }
    genTrackPositions(timeline, tracks, positions);
}

void sortClonesByTrackStart(MediaCloneMap const& map, Clones* clones)
{
    using StartAndClone = std::pair<long long, boost::shared_ptr<Media> const*>;
    std::vector<StartAndClone> sorted;
    sorted.reserve(map.size());
    for (MediaCloneMap::value_type const& entry : map)
        sorted.emplace_back(entry.second->trackRange().start, &entry.second);
    auto const isBefore = [](StartAndClone const& a, StartAndClone const& b) {
        return a.first < b.first;
    };
    // Pointers mostly rise as the medias do.
    if (!std::is_sorted(sorted.begin(), sorted.end(), isBefore))
        std::sort(sorted.begin(), sorted.end(), isBefore);
    clones->reserve(sorted.size());
    for (StartAndClone const& entry : sorted)
        clones->push_back(*entry.second);
}

// The earliest first, so that no clone meets one that has still to move.
void moveClonesBack(long long offset, Clones* clones)
{
    boost::shared_ptr<Track> track;
    for (boost::shared_ptr<Media const> const& clone : *clones) {
        if (!track || !clone->isPlacedOn(track))
            track = boost::const_pointer_cast<Track>(lockTrack(clone->parentTrack()));
        track->move(clone, saturatedDifference(0, offset), false);
    }
}

void shiftClonesToZero(MediaCloneMap const& map)
{
    Clones clones;
    sortClonesByTrackStart(map, &clones);
    moveClonesBack(clones.front()->trackRange().start, &clones);
}

}  // namespace

Clipping::Clipping(boost::shared_ptr<Timeline const> const& timeline, Range<long long> const& range,
                   ConstTrackSet const& tracks, std::string const& name)
    : SubProject(timeline->projectMutex()), m_name(new Attribute<std::string>(name, projectMutex()))
{
    MediaCloneMap clones;
    m_timeline = timeline->copyPortion(range, tracks, &clones);
    settleClones(*timeline, clones);
}

Clipping::Clipping(boost::shared_ptr<Timeline const> const& timeline,
                   ConstMediaVector const& medias, std::string const& name)
    : SubProject(timeline->projectMutex()), m_name(new Attribute<std::string>(name, projectMutex()))
{
    MediaCloneMap clones;
    m_timeline = timeline->copyPortion(medias, &clones);
    settleClones(*timeline, clones);
}

Clipping::Clipping(std::string const& name, boost::shared_ptr<Timeline> const& timeline,
                   TrackPositions const& positions,
                   boost::weak_ptr<ThreadSafe const> const& project)
    : SubProject(project)
    , m_name(new Attribute<std::string>(name, project))
    , m_timeline(timeline)
    , m_trackPositions(positions)
{}

void Clipping::settleClones(Timeline const& origin, MediaCloneMap const& clones)
{
    checkClonesNotEmpty(clones, m_name->value());
    genTrackPositions(origin, clones, &m_trackPositions);
    shiftClonesToZero(clones);
}

std::string Clipping::name() const
{
    return m_name->value();
}

int Clipping::trackPosition(boost::shared_ptr<Track const> const& track) const
{
    TrackPositions::const_iterator const entry = m_trackPositions.find(track);
    if (entry == m_trackPositions.end())
        throw ValueException<boost::shared_ptr<Track const>>("track not in clipping", track);
    return entry->second;
}

std::string Clipping::description() const
{
    std::ostringstream text;
    text << "Clipping\n"
         << "track positions:\n";
    for (TrackPositions::value_type const& entry : m_trackPositions)
        text << static_cast<void const*>(entry.first.get()) << " - " << entry.second << "\n";
    return text.str();
}

void Clipping::xmlName(XMLable::Options& options) const
{
    XmlText(options) << "Clipping";
}

void Clipping::xmlAttributes(XMLable::Options&) const {}

void Clipping::xmlBody(XMLable::Options&, int) const {}

}  // namespace tarn
