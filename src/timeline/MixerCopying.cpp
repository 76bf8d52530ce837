#include "timeline/Mixer.h"

#include "datatypes/LinkCloneUtil.h"
#include "project/ReadWriteMutex.h"
#include "timeline/AudioMixer.h"
#include "timeline/Media.h"
#include "timeline/Track.h"
#include "timeline/VisualMixer.h"

#include <algorithm>
#include <iterator>

// Clones of a mixer's tracks and of parts of it.

namespace tarn {

namespace {

bool mixerHasMedia(Mixer const& mixer, boost::shared_ptr<Media const> const& media)
{
    Mixer::TrackList const& tracks = mixer.trackList();
    return std::any_of(tracks.begin(), tracks.end(), [&](boost::shared_ptr<Track> const& track) {
        return track->hasMedia(media);
    });
}

/// Copies those of the medias that are on the mixer, in the order given.
void findOwnedMedias(Mixer const& mixer, ConstMediaVector const& medias, ConstMediaVector* owned)
{
    std::copy_if(
        medias.begin(), medias.end(), std::back_inserter(*owned),
        [&](boost::shared_ptr<Media const> const& media) { return mixerHasMedia(mixer, media); });
}

}  // namespace

void Mixer::appendTrackClones(Mixer const& other)
{
    for (boost::shared_ptr<Track> const& track : other.trackList()) {
        trackList().push_back(sharedClone<Track>(track));
    }
}

void Mixer::genTrackMapForCopying(ConstMediaVector const& medias, TrackMediasMap* trackMap) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    ConstMediaVector owned;
    findOwnedMedias(*this, medias, &owned);
    for (boost::shared_ptr<Media const> const& media : owned) {
        (*trackMap)[media->parentTrack().lock()].push_back(media);
    }
}

template <class M>
boost::shared_ptr<M> Mixer::copyPortionImpl(Range<long long> const& range,
                                            ConstTrackSet const& tracks, MediaCloneMap* map) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    MediaCloneMap ownMap;
    MediaCloneMap* const clones = map ? map : &ownMap;
    boost::shared_ptr<M> const copy(new M(static_cast<M const&>(*this), WithoutTracks()));
    for (boost::shared_ptr<Track> const& track : trackList()) {
        if (tracks.count(track) > 0) {
            copy->addTrack(track->copyPortion(range, clones), -1);
        }
    }
    LinkCloneUtil::linkClones(*clones);
    return copy;
}

template <class M>
boost::shared_ptr<M> Mixer::copyPortionImpl(ConstMediaVector const& medias,
                                            MediaCloneMap* map) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    MediaCloneMap ownMap;
    MediaCloneMap* const clones = map ? map : &ownMap;
    TrackMediasMap trackMap;
    genTrackMapForCopying(medias, &trackMap);
    boost::shared_ptr<M> const copy(new M(static_cast<M const&>(*this), WithoutTracks()));
    for (boost::shared_ptr<Track> const& track : trackList()) {
        TrackMediasMap::const_iterator const wanted = trackMap.find(track);
        if (wanted != trackMap.end()) {
            copy->addTrack(track->copyPortion(wanted->second, clones), -1);
        }
    }
    LinkCloneUtil::linkClones(*clones);
    return copy;
}

template boost::shared_ptr<VisualMixer> Mixer::copyPortionImpl<VisualMixer>(
    Range<long long> const& range, ConstTrackSet const& tracks, MediaCloneMap* map) const;
template boost::shared_ptr<VisualMixer> Mixer::copyPortionImpl<VisualMixer>(
    ConstMediaVector const& medias, MediaCloneMap* map) const;
template boost::shared_ptr<AudioMixer> Mixer::copyPortionImpl<AudioMixer>(
    Range<long long> const& range, ConstTrackSet const& tracks, MediaCloneMap* map) const;
template boost::shared_ptr<AudioMixer> Mixer::copyPortionImpl<AudioMixer>(
    ConstMediaVector const& medias, MediaCloneMap* map) const;

}  // namespace tarn
