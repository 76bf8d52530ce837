#include "timeline/AMFile.h"

#include "datatypes/XmlText.h"
#include "exceptions/TarnMediaLibException.h"
#include "timeline/ConstMediaDispatcher.h"
#include "timeline/MediaDispatcher.h"

#include <istream>
#include <iterator>
#include <ostream>
#include <utility>

namespace tarn {

namespace {

using AMFiles = std::set<boost::shared_ptr<AMFile const>>;

SourceTrack checkedTrack(boost::shared_ptr<Source const> const& source, unsigned int trackNumber)
{
    return SourceTrack(source, trackNumber, "trying to make a amfile with an invalid source track");
}

SourceTrack checkedTrack(boost::shared_ptr<Source const> const& source, unsigned int trackNumber,
                         unsigned int channel)
{
    SourceTrack track = checkedTrack(source, trackNumber);
    if (channel >= track.numChannels())
        throw TarnMediaLibException("trying to make a amfile with an invalid channel");
    return track;
}

SourceTrack checkedTrack(boost::shared_ptr<Source const> const& source, unsigned int trackNumber,
                         std::set<unsigned int> const& channels)
{
    SourceTrack track = checkedTrack(source, trackNumber);
    // The set rises, so its last member decides.
    if (!channels.empty() && *channels.rbegin() >= track.numChannels())
        throw TarnMediaLibException("trying to make a amfile with an invalid channels");
    return track;
}

void validateChannels(AMFile const& a, AMFile const& b)
{
    if (a.source() != b.source())
        throw TarnMediaLibException("trying to merge amfiles with different sources");
    if (a.trackNumber() != b.trackNumber())
        throw TarnMediaLibException("trying to merge amfiles with different tracks");
    MediaTiming const timingA = a.timing();
    MediaTiming const timingB = b.timing();
    if (timingA.mediaRange != timingB.mediaRange || timingA.trackRange != timingB.trackRange)
        throw TarnMediaLibException("trying to merge amfiles with different media ranges");
}

AMFile const& firstOf(AMFiles const& files)
{
    if (files.empty() || !*files.begin())
        throw TarnMediaLibException("trying to merge amfiles where there are none");
    return **files.begin();
}

std::set<unsigned int> mergedChannels(AMFiles const& files)
{
    AMFile const& first = firstOf(files);
    std::set<unsigned int> merged;
    for (boost::shared_ptr<AMFile const> const& file : files) {
        validateChannels(first, *file);
        std::set<unsigned int> const channels = file->channels();
        merged.insert(channels.begin(), channels.end());
    }
    return merged;
}

std::set<unsigned int> existingChannel(AMFile const& file, unsigned int channel)
{
    if (file.channels().count(channel) == 0) {
        throw TarnMediaLibException("trying to copy a channel that doesn't exist in this amfile");
    }
    return std::set<unsigned int>({channel});
}

}  // namespace

AMFile::AMFile(Range<long long> const& range, boost::weak_ptr<ThreadSafe const> const& project,
               boost::shared_ptr<Source const> const& source, unsigned int trackNumber,
               unsigned int channel)
    : AMFile(range, checkedTrack(source, trackNumber, channel), std::set<unsigned int>({channel}),
             project)
{}

AMFile::AMFile(Range<long long> const& range, boost::weak_ptr<ThreadSafe const> const& project,
               boost::shared_ptr<Source const> const& source, unsigned int trackNumber,
               std::set<unsigned int> channels)
    : AMFile(range, checkedTrack(source, trackNumber, channels), std::move(channels), project)
{}

AMFile::AMFile(Range<long long> const& range, SourceTrack&& track,
               std::set<unsigned int>&& channels, boost::weak_ptr<ThreadSafe const> const& project)
    : AMFile(range, track.timeRange(), std::move(track), std::move(channels), project)
{}

AMFile::AMFile(Range<long long> const& range, Range<long long> const& limits, SourceTrack&& track,
               std::set<unsigned int>&& channels, boost::weak_ptr<ThreadSafe const> const& project)
    : AudioMedia(range, track.sampleRate(), track.bitDepth(), static_cast<double>(limits.start),
                 static_cast<double>(limits.end()), project)
    , m_track(std::move(track))
    , m_channels(std::move(channels))
{}

AMFile::AMFile(Range<long long> const& range, unsigned int sampleRate, unsigned int bitDepth,
               boost::weak_ptr<ThreadSafe const> const& project, std::string const& fileName,
               std::set<unsigned int> const& channels)
    : AudioMedia(range, sampleRate, bitDepth, static_cast<double>(range.start),
                 static_cast<double>(range.end()), project)
    , m_track(fileName)
    , m_channels(channels)
{}

AMFile::AMFile(std::set<boost::shared_ptr<AMFile const>> const& others)
    : AMFile(firstOf(others), mergedChannels(others))
{}

AMFile::AMFile(boost::shared_ptr<AMFile const> const& other, unsigned int channel)
    : AMFile(*other, existingChannel(*other, channel))
{}

AMFile::AMFile(AMFile const& other)
    : XMLIdentified(other), AudioMedia(other), m_track(other.m_track), m_channels(other.m_channels)
{}

AMFile::AMFile(AMFile const& other, std::set<unsigned int> const& channels)
    : XMLIdentified(other), AudioMedia(other), m_track(other.m_track), m_channels(channels)
{
    copyEdgeModifications(other);
}

std::set<unsigned int> AMFile::channels() const
{
    return m_channels;
}

unsigned int AMFile::numChannels() const
{
    return static_cast<unsigned int>(m_channels.size());
}

unsigned int AMFile::trackNumber() const
{
    return m_track.trackNumber();
}

boost::shared_ptr<Source const> AMFile::source() const
{
    return m_track.source();
}

std::string AMFile::fileName() const
{
    return m_track.fileName();
}

std::string AMFile::containerFileName() const
{
    return m_track.containerFileName();
}

std::vector<boost::shared_ptr<AudioMedia>> AMFile::splitChannels() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    std::vector<boost::shared_ptr<AudioMedia>> result;
    for (unsigned int const channel : m_channels) {
        result.push_back(
            boost::shared_ptr<AudioMedia>(new AMFile(*this, std::set<unsigned int>({channel}))));
    }
    return result;
}

void AMFile::writeChannels(std::ostream& out) const
{
    char const* separator = "";
    for (unsigned int const channel : m_channels) {
        out << separator << channel;
        separator = " ";
    }
}

std::set<unsigned int> AMFile::readChannels(std::istream& in)
{
    return std::set<unsigned int>(std::istream_iterator<unsigned int>(in),
                                  std::istream_iterator<unsigned int>());
}

void AMFile::holdSourceWeakly()
{
    m_track.holdSourceWeakly();
}

void AMFile::receiveDispatcher(ConstMediaDispatcher* dispatcher) const
{
    dispatcher->dispatchMedia(boost::static_pointer_cast<AMFile const>(shared_from_this()));
}

void AMFile::receiveDispatcher(MediaDispatcher* dispatcher)
{
    dispatcher->dispatchMedia(boost::static_pointer_cast<AMFile>(shared_from_this()));
}

bool AMFile::isInstanceOf(boost::shared_ptr<Source const> const& source) const
{
    return m_track.isInstanceOf(source);
}

AMFile* AMFile::clone() const
{
    return cloneOf(*this);
}

std::string AMFile::description() const
{
    return "amfile";
}

void AMFile::xmlName(XMLable::Options& options) const
{
    XmlText(options) << "AMFile";
}

void AMFile::xmlAttributes(XMLable::Options& options) const
{
    AudioMedia::xmlAttributes(options);
    XmlText out(options);
    out << " trackNumber=\"" << trackNumber() << "\" src=\"" << m_track.sourceXmlIdent() << '"';
    for (unsigned int const channel : m_channels)
        out << " channelNumber=\"" << channel << '"';
}

}  // namespace tarn
