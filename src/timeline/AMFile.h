#pragma once

#include "timeline/AudioMedia.h"
#include "timeline/SourceTrack.h"

#include <iosfwd>
#include <set>

namespace tarn {

/// Some or all channels of one sound track of a source.
class TARN_API AMFile : public AudioMedia
{
public:
    /// One channel. `range` is edit units on the source's clock.
    /// @throws TarnMediaLibException "trying to make a amfile with an invalid source track" or
    ///         "trying to make a amfile with an invalid channel"
    AMFile(Range<long long> const& range, boost::weak_ptr<ThreadSafe const> const& project,
           boost::shared_ptr<Source const> const& source, unsigned int trackNumber,
           unsigned int channel);
    /// Several channels. Pass a real set: braces choose the form above.
    /// @throws TarnMediaLibException "trying to make a amfile with an invalid source track" or
    ///         "trying to make a amfile with an invalid channels"
    AMFile(Range<long long> const& range, boost::weak_ptr<ThreadSafe const> const& project,
           boost::shared_ptr<Source const> const& source, unsigned int trackNumber,
           std::set<unsigned int> channels);
    /// Of a file known by name only; trims are bounded by `range` itself.
    AMFile(Range<long long> const& range, unsigned int sampleRate, unsigned int bitDepth,
           boost::weak_ptr<ThreadSafe const> const& project, std::string const& fileName,
           std::set<unsigned int> const& channels = std::set<unsigned int>({0u}));
    /// Merges: a copy of the first that has the channels of all.
    /// @throws TarnMediaLibException when nothing is given, or source, track or ranges differ
    explicit AMFile(std::set<boost::shared_ptr<AMFile const>> const& others);
    /// Copies one channel out.
    /// @throws TarnMediaLibException "trying to copy a channel that doesn't exist in this amfile"
    AMFile(boost::shared_ptr<AMFile const> const& other, unsigned int channel);

    /// Counted from 0, rising.
    std::set<unsigned int> channels() const;
    unsigned int numChannels() const override;
    /// The track of its source that it shows, counted from 0.
    unsigned int trackNumber() const;
    /// Empty for a file known by name only.
    boost::shared_ptr<Source const> source() const;
    /// The file that holds the sound itself: the component file inside a bundle.
    std::string fileName() const;
    /// The file as it was loaded: the bundle, or the same as fileName().
    std::string containerFileName() const;
    std::vector<boost::shared_ptr<AudioMedia>> splitChannels() const override;

    /// Writes the channel numbers, rising, with a blank between.
    void writeChannels(std::ostream& out) const;
    /// Reads what writeChannels() wrote, up to the first thing that is no number.
    static std::set<unsigned int> readChannels(std::istream& in);

    /// For a source's own medias only, which must not keep their source alive.
    void holdSourceWeakly();

    void receiveDispatcher(ConstMediaDispatcher* dispatcher) const override;
    void receiveDispatcher(MediaDispatcher* dispatcher) override;
    bool isInstanceOf(boost::shared_ptr<Source const> const& source) const override;
    AMFile* clone() const override;

    std::string description() const override;
    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;

protected:
    AMFile(AMFile const& other);

private:
    friend class MediaImpl;  // its cloneOf() copies

    /// Takes track and channels over.
    AMFile(Range<long long> const& range, SourceTrack&& track, std::set<unsigned int>&& channels,
           boost::weak_ptr<ThreadSafe const> const& project);
    /// `limits`: what the source offers.
    AMFile(Range<long long> const& range, Range<long long> const& limits, SourceTrack&& track,
           std::set<unsigned int>&& channels, boost::weak_ptr<ThreadSafe const> const& project);
    /// A complete copy but for the channels.
    AMFile(AMFile const& other, std::set<unsigned int> const& channels);

    SourceTrack m_track;
    std::set<unsigned int> m_channels;
};

}  // namespace tarn
