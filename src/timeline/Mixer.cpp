#include "timeline/Mixer.h"

#include "datatypes/SaturatedArithmetic.h"
#include "datatypes/UpdateCollector.h"
#include "datatypes/XmlText.h"
#include "effects/Effect.h"
#include "effects/VectorEffectable.h"
#include "exceptions/IndexException.h"
#include "exceptions/ValueException.h"
#include "project/ReadWriteMutex.h"
#include "project/SharedReadLock.h"
#include "timeline/AudioTrack.h"
#include "timeline/ImageTrack.h"
#include "timeline/VisualTrack.h"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <limits>

namespace tarn {

namespace {

Mixer::TrackList::iterator findForSwap(Mixer::TrackList& tracks,
                                       boost::shared_ptr<Track const> const& track)
{
    Mixer::TrackList::iterator const found = std::find(tracks.begin(), tracks.end(), track);
    if (found == tracks.end()) {
        throw ValueException<boost::shared_ptr<Track const>>(
            "trying to swap track that doesn't exist", track);
    }
    return found;
}

}  // namespace

Mixer::Mixer(boost::weak_ptr<ThreadSafe const> const& project)
    : SubTimeline(project), m_effects(boost::make_shared<VectorEffectable>())
{}

Mixer::Mixer(Mixer const& other)
    : XMLIdentified(other)
    , SubTimeline(other)
    , Cloneable(other)
    , boost::enable_shared_from_this<Mixer>(other)
    , m_effects(boost::make_shared<VectorEffectable>(*other.m_effects))
{}

void Mixer::swapTrackOrder(boost::shared_ptr<Track const> const& track1,
                           boost::shared_ptr<Track const> const& track2)
{
    TrackList::iterator const first = findForSwap(trackList(), track1);
    TrackList::iterator const second = findForSwap(trackList(), track2);
    std::iter_swap(first, second);
    notify();
}

long long Mixer::endTime() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    long long end = 0;
    for (boost::shared_ptr<Track> const& track : trackList()) {
        end = std::max(end, track->endTime());
    }
    return end;
}

long long Mixer::startTime() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    long long const never = std::numeric_limits<long long>::max();
    long long start = never;
    for (boost::shared_ptr<Track> const& track : trackList()) {
        start = std::min(start, track->startTime());
    }
    return start == never ? 0 : start;
}

long long Mixer::duration() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return saturatedDifference(endTime(), startTime());
}

void Mixer::notify() const
{
    if (UpdateCollector::instance()->isCollecting()) {
        UpdateCollector::instance()->addObservable(shared_from_this());
    } else {
        Subject::notify();
    }
}

std::string Mixer::description() const
{
    return "Mixer";
}

// Tracks. Each const iterator takes its lock before it looks into the list.

Mixer::TrackList::iterator Mixer::trackBegin()
{
    return trackList().begin();
}

Mixer::TrackList::iterator Mixer::trackEnd()
{
    return trackList().end();
}

Mixer::ConstTrackIterator Mixer::trackBegin() const
{
    boost::shared_ptr<SharedReadLock const> const lock = SharedReadLock::acquire(projectMutex());
    return ConstTrackIterator(trackList().begin(), lock);
}

Mixer::ConstTrackIterator Mixer::trackEnd() const
{
    boost::shared_ptr<SharedReadLock const> const lock = SharedReadLock::acquire(projectMutex());
    return ConstTrackIterator(trackList().end(), lock);
}

unsigned int Mixer::numTracks() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return static_cast<unsigned int>(trackList().size());
}

boost::shared_ptr<Track> Mixer::trackAtIndex(unsigned int index)
{
    Mixer const& self = *this;
    return boost::const_pointer_cast<Track>(self.trackAtIndex(index));
}

boost::shared_ptr<Track const> Mixer::trackAtIndex(unsigned int index) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    if (index >= trackList().size()) {
        throw IndexException(index);
    }
    return trackList()[index];
}

int Mixer::indexForTrack(boost::shared_ptr<Track const> const& track) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    TrackList::const_iterator const found =
        std::find(trackList().begin(), trackList().end(), track);
    return found == trackList().end() ? -1 : static_cast<int>(found - trackList().begin());
}

bool Mixer::hasTrack(boost::shared_ptr<Track const> const& track) const
{
    return indexForTrack(track) != -1;
}

void Mixer::removeTracks()
{
    trackList().clear();
    notify();
}

void Mixer::addTrackSansTypeCheck(boost::shared_ptr<Track> const& track, int index)
{
    int const size = static_cast<int>(trackList().size());
    if (index < -1 || index > size) {
        throw ValueException<int>("invalid index", index);
    }
    trackList().insert(trackList().begin() + (index == -1 ? size : index), track);
    notify();
}

template <class T>
boost::shared_ptr<T> Mixer::newTrack(int index)
{
    boost::shared_ptr<T> const track(new T(projectMutex()));
    addTrack(track, index);
    return track;
}

template boost::shared_ptr<VisualTrack> Mixer::newTrack<VisualTrack>(int index);
template boost::shared_ptr<ImageTrack> Mixer::newTrack<ImageTrack>(int index);
template boost::shared_ptr<AudioTrack> Mixer::newTrack<AudioTrack>(int index);

template <class T>
std::pair<boost::shared_ptr<T>, int> Mixer::removeTrack(boost::shared_ptr<T const> const& track)
{
    TrackList::iterator const found = std::find(trackList().begin(), trackList().end(), track);
    if (found == trackList().end()) {
        throw ValueException<boost::shared_ptr<Track const>>(
            "trying to remove a track not on mixer", track);
    }
    int const index = static_cast<int>(found - trackList().begin());
    std::pair<boost::shared_ptr<T>, int> const removed(boost::const_pointer_cast<T>(track), index);
    trackList().erase(found);
    notify();
    return removed;
}

template std::pair<boost::shared_ptr<Track>, int> Mixer::removeTrack<Track>(
    boost::shared_ptr<Track const> const& track);
template std::pair<boost::shared_ptr<AbstractVisualTrack>, int>
Mixer::removeTrack<AbstractVisualTrack>(boost::shared_ptr<AbstractVisualTrack const> const& track);
template std::pair<boost::shared_ptr<VisualTrack>, int> Mixer::removeTrack<VisualTrack>(
    boost::shared_ptr<VisualTrack const> const& track);
template std::pair<boost::shared_ptr<ImageTrack>, int> Mixer::removeTrack<ImageTrack>(
    boost::shared_ptr<ImageTrack const> const& track);
template std::pair<boost::shared_ptr<AudioTrack>, int> Mixer::removeTrack<AudioTrack>(
    boost::shared_ptr<AudioTrack const> const& track);

bool Mixer::hasInstanceOf(boost::shared_ptr<Source const> const& source) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return std::any_of(
        trackList().begin(), trackList().end(),
        [&](boost::shared_ptr<Track> const& track) { return track->hasInstanceOf(source); });
}

boost::shared_ptr<ConstMediaList> Mixer::instancesOf(
    boost::shared_ptr<Source const> const& source) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    boost::shared_ptr<ConstMediaList> const result = boost::make_shared<ConstMediaList>();
    for (boost::shared_ptr<Track> const& track : trackList()) {
        result->splice(result->end(), *track->instancesOf(source));
    }
    return result;
}

// Effects.

int Mixer::addEffect(boost::shared_ptr<Effect> const& effect)
{
    int const index = m_effects->addEffect(effect);
    notify();
    return index;
}

void Mixer::insertEffect(boost::shared_ptr<Effect> const& effect, int index)
{
    m_effects->insertEffect(effect, index);
    notify();
}

void Mixer::swapEffectOrder(int index1, int index2)
{
    m_effects->swapEffectOrder(index1, index2);
    notify();
}

RemovedEffect Mixer::removeEffect(boost::shared_ptr<Effect const> const& effect)
{
    RemovedEffect const removed = m_effects->removeEffect(effect);
    notify();
    return removed;
}

RemovedEffect Mixer::removeEffect(int index)
{
    RemovedEffect const removed = m_effects->removeEffect(index);
    notify();
    return removed;
}

boost::shared_ptr<Effect> Mixer::effectAtIndex(int index)
{
    return m_effects->effectAtIndex(index);
}

boost::shared_ptr<Effect const> Mixer::effectAtIndex(int index) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    VectorEffectable const& effects = *m_effects;
    return effects.effectAtIndex(index);
}

int Mixer::numEffects() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_effects->numEffects();
}

// The clock of the parameters.

bool Mixer::showsAsStored(ParameterInterface const*) const
{
    return true;
}

double Mixer::toParameterTime(double time) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return time;
}

double Mixer::fromParameterTime(double time) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return time;
}

long long Mixer::fromGlobalToParametricTime(long long time) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return time;
}

// XML.

void Mixer::xmlName(XMLable::Options& options) const
{
    XmlText(options) << "Mixer";
}

void Mixer::xmlAttributes(XMLable::Options&) const {}

void Mixer::xmlBody(XMLable::Options& options, int indent) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    xmlOfParametersEffectsAttributes(options, indent);
    XmlText(options).indent(indent) << "<Tracks>\n";
    for (boost::shared_ptr<Track> const& track : trackList()) {
        track->toXML(options, indent + 1, "");
    }
    XmlText(options).indent(indent) << "</Tracks>\n";
}

}  // namespace tarn
