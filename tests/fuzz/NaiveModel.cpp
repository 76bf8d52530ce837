#include "fuzz/NaiveModel.h"

#include "fuzz/Code.h"
#include "fuzz/CommandMaker.h"
#include "fuzz/Stage.h"

#include "timeline/AbstractVisualTrack.h"
#include "timeline/AudioMedia.h"
#include "timeline/AudioMixer.h"
#include "timeline/AudioTrack.h"
#include "timeline/AudioTransition.h"
#include "timeline/ImageMedia.h"
#include "timeline/MediaImpl.h"
#include "timeline/Timeline.h"
#include "timeline/VisualMixer.h"

#include <cmath>
#include <cstdlib>

namespace tarn {
namespace test {
namespace {

long long const k_far = 1LL << 50;

bool isFar(long long value)
{
    return value > k_far || value < -k_far;
}

bool differLessThanOne(double a, double b)
{
    return std::fabs(a - b) < 1.0;
}

double rounded(double value)
{
    return std::fmod(value, 1.0) >= 0.5 ? std::ceil(value) : std::floor(value);
}

bool overlap(long long start, long long length, long long otherStart, long long otherLength)
{
    return length > 0 && otherLength > 0 && start < otherStart + otherLength &&
           otherStart < start + length;
}

std::vector<boost::shared_ptr<Track>> tracksOf(Stage const& stage)
{
    std::vector<boost::shared_ptr<Track>> result;
    if (boost::shared_ptr<Mixer> const pictures = stage.timeline()->visualMixer())
        result = pictures->trackList();
    if (boost::shared_ptr<Mixer> const sounds = stage.timeline()->audioMixer())
        result.insert(result.end(), sounds->trackList().begin(), sounds->trackList().end());
    return result;
}

}  // namespace

bool NaiveModel::knows(Op op)
{
    return op == Op::Add || op == Op::Remove || op == Op::Move || op == Op::TrimStart ||
           op == Op::TrimEnd || op == Op::Stretch;
}

NaiveModel::Interval NaiveModel::intervalOf(Media const& media, Track const* track)
{
    MediaImpl const& impl = static_cast<MediaImpl const&>(media);
    Interval result;
    result.track = track;
    result.start = media.trackRange().start;
    result.length = media.trackRange().duration;
    result.isStill = dynamic_cast<ImageMedia const*>(&media) != nullptr;
    result.mediaStart = media.mediaRange().start;
    result.mediaLength = media.mediaRange().duration;
    result.scalar = media.scalar();
    result.lowest = impl.mediaStartLimit();
    result.highest = impl.mediaEndLimit();
    Media& links = const_cast<Media&>(media);  // the plain iterators, which lock nothing
    for (auto link = links.linkBegin(); link != links.linkEnd(); ++link)
        result.links.push_back(link->lock().get());
    return result;
}

void NaiveModel::copy(Stage const& stage)
{
    m_intervals.clear();
    for (boost::shared_ptr<Track> const& track : tracksOf(stage))
        for (auto const& entry : track->medias())
            m_intervals[entry.second.get()] = intervalOf(*entry.second, track.get());
}

std::string NaiveModel::difference(Stage const& stage) const
{
    std::size_t count = 0;
    for (boost::shared_ptr<Track> const& track : tracksOf(stage)) {
        for (auto const& entry : track->medias()) {
            ++count;
            auto const found = m_intervals.find(entry.second.get());
            if (found == m_intervals.end())
                return "a media at " + std::to_string(entry.first) + " that should not be there";
            Interval const& mine = found->second;
            Interval const real = intervalOf(*entry.second, track.get());
            if (mine.track != real.track || mine.start != real.start ||
                mine.length != real.length || mine.mediaStart != real.mediaStart ||
                mine.mediaLength != real.mediaLength || mine.scalar != real.scalar)
                return "the media at " + std::to_string(real.start) + " (" +
                       std::to_string(real.length) + " long, of its source from " +
                       std::to_string(real.mediaStart) + " for " +
                       std::to_string(real.mediaLength) + ") should be at " +
                       std::to_string(mine.start) + " (" + std::to_string(mine.length) +
                       " long, from " + std::to_string(mine.mediaStart) + " for " +
                       std::to_string(mine.mediaLength) + ")";
        }
    }
    return count == m_intervals.size() ? "" : "a media is missing";
}

NaiveModel::Outcome NaiveModel::run(Op op, MadeCommand const& command)
{
    // What has no length is found or not by what lies around it.
    for (auto const& interval : m_intervals)
        if (interval.second.length <= 0)
            return Outcome::Unknown;
    if (isFar(command.amount))
        return Outcome::Unknown;
    if (op == Op::Add)
        return add(command);
    auto const found = m_intervals.find(command.media.get());
    if (found == m_intervals.end() || found->second.track != command.track.get())
        return op == Op::Remove ? Outcome::Unknown : Outcome::Refused;
    Interval& edited = found->second;
    if (!isKnownGroup(groupOf(edited)))
        return Outcome::Unknown;
    switch (op) {
    case Op::Remove:
        return remove(command.media.get());
    case Op::Move:
        return move(edited, command.amount);
    case Op::TrimStart:
        return trimStart(edited, command.amount);
    case Op::TrimEnd:
        return trimEnd(edited, command.amount);
    default:
        return stretch(edited, command.scalar);
    }
}

std::vector<NaiveModel::Interval*> NaiveModel::groupOf(Interval& edited)
{
    std::vector<Interval*> group{&edited};
    for (Media const* link : edited.links) {
        auto const found = m_intervals.find(link);
        group.push_back(found == m_intervals.end() ? nullptr : &found->second);
    }
    return group;
}

/// All on the timeline, and in step.
bool NaiveModel::isKnownGroup(std::vector<Interval*> const& group) const
{
    for (Interval const* member : group)
        if (!member || member->start != group[0]->start || member->length != group[0]->length ||
            isFar(member->start) || isFar(member->length))
            return false;
    return true;
}

bool NaiveModel::collides(std::vector<Interval*> const& group, long long start,
                          long long length) const
{
    for (Interval const* member : group)
        for (auto const& other : m_intervals)
            if (&other.second != member && other.second.track == member->track &&
                overlap(start, length, other.second.start, other.second.length))
                return true;
    return false;
}

bool NaiveModel::startIsTaken(std::vector<Interval*> const& group, long long start) const
{
    for (Interval const* member : group)
        for (auto const& other : m_intervals)
            if (&other.second != member && other.second.track == member->track &&
                other.second.start == start)
                return true;
    return false;
}

NaiveModel::Outcome NaiveModel::add(MadeCommand const& command)
{
    // Whether its source is in the bin by now is not this model's to know.
    if (command.code.find(code::pool(Stage::k_foreign)) != std::string::npos)
        return Outcome::Unknown;
    bool const isSound = dynamic_cast<AudioTrack const*>(command.track.get()) != nullptr;
    if (isSound != (dynamic_cast<AudioMedia const*>(command.media.get()) != nullptr))
        return Outcome::Refused;
    if (dynamic_cast<AudioTransition const*>(command.media.get()))
        return Outcome::Refused;  // sound tracks take none
    Interval added = intervalOf(*command.media, command.track.get());
    added.start = command.amount;
    for (auto const& other : m_intervals)
        if (other.second.track == added.track &&
            overlap(added.start, added.length, other.second.start, other.second.length))
            return Outcome::Collides;
    for (auto const& other : m_intervals)
        if (other.second.track == added.track && other.second.start == added.start)
            return Outcome::Unknown;  // one of them has no length
    m_intervals[command.media.get()] = added;
    return Outcome::Done;
}

NaiveModel::Outcome NaiveModel::remove(Media const* media)
{
    std::vector<Media const*> const links = m_intervals[media].links;
    m_intervals.erase(media);
    for (Media const* link : links)
        m_intervals.erase(link);
    return Outcome::Done;
}

NaiveModel::Outcome NaiveModel::move(Interval& edited, long long by)
{
    std::vector<Interval*> const group = groupOf(edited);
    long long const start = edited.start + by;
    if (collides(group, start, edited.length) || startIsTaken(group, start))
        return Outcome::Collides;
    for (Interval* member : group)
        member->start = start;
    return Outcome::Done;
}

bool NaiveModel::trimIsValid(Interval const& edited, long long length)
{
    if (length < 0)
        return false;
    double const mediaLength =
        edited.mediaLength - (edited.mediaLength - static_cast<double>(length) / edited.scalar);
    if (!(mediaLength >= 1.0))
        return false;
    return differLessThanOne(edited.highest, mediaLength) || mediaLength <= edited.highest;
}

bool NaiveModel::trimStartOf(Interval& edited, long long by)
{
    long long const length = edited.length - by;
    if (!edited.isStill) {
        double const start =
            edited.mediaLength - static_cast<double>(length) / edited.scalar + edited.mediaStart;
        bool const startsEarly = start < edited.lowest && !differLessThanOne(edited.lowest, start);
        bool const startsLate = differLessThanOne(edited.highest, start) || start > edited.highest;
        if (edited.start + by < 0 || startsEarly || startsLate || !trimIsValid(edited, length))
            return false;
        double mediaLength = static_cast<double>(length) / edited.scalar;
        if (differLessThanOne(edited.highest, mediaLength))
            mediaLength = edited.highest;
        edited.mediaStart += edited.mediaLength - mediaLength;
        edited.mediaLength = mediaLength;
        if (differLessThanOne(0.0, edited.mediaStart))
            edited.mediaStart = 0.0;
    }
    edited.start += by;
    edited.length = length;
    return true;
}

bool NaiveModel::trimEndOf(Interval& edited, long long by)
{
    long long const length = edited.length - by;
    if (!edited.isStill) {
        if (!trimIsValid(edited, length))
            return false;
        edited.mediaLength = static_cast<double>(length) / edited.scalar;
        if (differLessThanOne(edited.highest, edited.mediaLength))
            edited.mediaLength = edited.highest;
    }
    edited.length = length;
    return true;
}

NaiveModel::Outcome NaiveModel::trimStart(Interval& edited, long long by)
{
    std::vector<Interval*> const group = groupOf(edited);
    if (collides(group, edited.start + by, edited.length - by) ||
        startIsTaken(group, edited.start + by))
        return Outcome::Collides;
    if (!trimStartOf(edited, by))
        return Outcome::Refused;
    for (std::size_t i = 1; i < group.size() && trimStartOf(*group[i], by); ++i) {
    }
    return Outcome::Done;
}

NaiveModel::Outcome NaiveModel::trimEnd(Interval& edited, long long by)
{
    std::vector<Interval*> const group = groupOf(edited);
    if (collides(group, edited.start, edited.length - by))
        return Outcome::Collides;
    if (!trimEndOf(edited, by))
        return Outcome::Refused;
    for (std::size_t i = 1; i < group.size() && trimEndOf(*group[i], by); ++i) {
    }
    return Outcome::Done;
}

double NaiveModel::scalarFor(Interval const& edited, double requested)
{
    double const length = static_cast<double>(edited.length);
    double const natural = length / edited.scalar;
    if (requested == 1.0)
        return std::min(rounded(natural), std::floor(edited.highest - edited.mediaStart)) *
               edited.scalar / length;
    return rounded(natural * requested) * edited.scalar / length;
}

bool NaiveModel::stretchOf(Interval& edited, double requested)
{
    double const scalar = scalarFor(edited, requested);
    double const length = rounded(static_cast<double>(edited.length) / edited.scalar * scalar);
    if (!(length > 0))
        return false;
    edited.length = static_cast<long long>(length);
    edited.scalar = requested == 1.0 ? 1.0 : scalar;
    return true;
}

NaiveModel::Outcome NaiveModel::stretch(Interval& edited, double requested)
{
    if (!(std::fabs(requested) < 1e6) || edited.length == 0)
        return Outcome::Unknown;
    std::vector<Interval*> const group = groupOf(edited);
    // Literally so: from the present length, which is another one for what is stretched already.
    double const predicted =
        rounded(scalarFor(edited, requested) * static_cast<double>(edited.length));
    if (collides(group, edited.start, static_cast<long long>(predicted)))
        return Outcome::Collides;
    if (!stretchOf(edited, requested))
        return Outcome::Refused;
    for (std::size_t i = 1; i < group.size() && stretchOf(*group[i], requested); ++i) {
    }
    return Outcome::Done;
}

}  // namespace test
}  // namespace tarn
