#pragma once

#include "datatypes/Export.h"
#include "timeline/CastingIterator.h"
#include "timeline/Mixer.h"

namespace tarn {

/// The mixer of audio tracks, with the format of what it gives out.
class TARN_API AudioMixer : public Mixer
{
public:
    using AudioTrackIterator = CastingIterator<TrackList::iterator, CastTrack<AudioTrack>>;
    using ConstAudioTrackIterator =
        CastingIterator<ConstTrackIterator, CastTrack<AudioTrack const>>;

    AudioMixer(unsigned int sampleRate, unsigned int bitDepth, unsigned int numChannels,
               boost::weak_ptr<ThreadSafe const> const& project);

    AudioMixer* clone() const override;

    /// Takes an AudioTrack only.
    /// @throws TypeException for anything else
    void addTrack(boost::shared_ptr<Track> const& track, int index) override;

    TrackList& trackList() override;
    TrackList const& trackList() const override;

    /// The tracks in order, each seen as an audio track. The const forms hold the read lock for
    /// their life; the others hold none.
    AudioTrackIterator trackBegin();
    AudioTrackIterator trackEnd();
    ConstAudioTrackIterator trackBegin() const;
    ConstAudioTrackIterator trackEnd() const;
    /// @throws IndexException
    boost::shared_ptr<AudioTrack> trackAtIndex(unsigned int index);
    boost::shared_ptr<AudioTrack const> trackAtIndex(unsigned int index) const;

    /// Samples a second.
    boost::shared_ptr<Attribute<unsigned int> const> attributeSampleRate() const;
    /// Bits a sample.
    boost::shared_ptr<Attribute<unsigned int> const> attributeBitDepth() const;
    /// How many channels it gives out.
    boost::shared_ptr<Attribute<unsigned int> const> attributeNumChannels() const;

    /// A mixer with clones of what lies in `range` (edit units of the timeline) on those of its
    /// tracks that are named, or of the medias as a whole. Links between copied medias hold between
    /// their clones; `map`, which may be null, receives each pair. Read lock.
    boost::shared_ptr<AudioMixer> copyPortion(Range<long long> const& range,
                                              ConstTrackSet const& tracks,
                                              MediaCloneMap* map) const;
    boost::shared_ptr<AudioMixer> copyPortion(ConstMediaVector const& medias,
                                              MediaCloneMap* map) const;

    int numParameters() const override;
    boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>> parameterVector()
        const override;
    int numAttributes() const override;

    void xmlName(XMLable::Options& options) const override;
    void xmlOfParameters(XMLable::Options& options, int indent) const override;
    void xmlOfAttributes(XMLable::Options& options, int indent) const override;

    std::string description() const override;

private:
    friend class Mixer;  // copies portions

    AudioMixer(AudioMixer const& other);
    AudioMixer(AudioMixer const& other, WithoutTracks);

    TrackList m_tracks;
    boost::shared_ptr<Attribute<unsigned int>> m_sampleRate;
    boost::shared_ptr<Attribute<unsigned int>> m_bitDepth;
    boost::shared_ptr<Attribute<unsigned int>> m_numChannels;
};

}  // namespace tarn
