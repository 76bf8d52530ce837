#include "timeline/Track.h"

#include "datatypes/SaturatedArithmetic.h"
#include "datatypes/UpdateCollector.h"
#include "datatypes/XmlText.h"
#include "effects/Effect.h"
#include "effects/VectorEffectable.h"
#include "parameters/MTVector.h"
#include "project/ReadWriteMutex.h"
#include "project/SharedReadLock.h"
#include "timeline/Media.h"

#include <boost/make_shared.hpp>

namespace tarn {

Track::Track(boost::weak_ptr<ThreadSafe const> const& project)
    : SubTimeline(project), m_effects(boost::make_shared<VectorEffectable>())
{}

Track::Track(Track const& other)
    : XMLIdentified(other)
    , SubTimeline(other)
    , Cloneable(other)
    , boost::enable_shared_from_this<Track>(other)
    , m_effects(boost::make_shared<VectorEffectable>(*other.m_effects))
{}

long long Track::endTime() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return medias().empty() ? 0 : medias().rbegin()->second->endTime();
}

long long Track::startTime() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return medias().empty() ? 0 : medias().begin()->second->startTime();
}

long long Track::duration() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return saturatedDifference(endTime(), startTime());
}

void Track::notify() const
{
    if (UpdateCollector::instance()->isCollecting()) {
        UpdateCollector::instance()->addObservable(shared_from_this());
    } else {
        Subject::notify();
    }
}

std::string Track::description() const
{
    return "Track";
}

// Iterators: each const one takes its lock before it looks into the map.

unsigned int Track::numMedias() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return static_cast<unsigned int>(medias().size());
}

Track::MediaMap::iterator Track::mediaBegin()
{
    return medias().begin();
}

Track::MediaMap::iterator Track::mediaEnd()
{
    return medias().end();
}

Track::ConstMediaIterator Track::mediaBegin() const
{
    boost::shared_ptr<SharedReadLock const> const lock = SharedReadLock::acquire(projectMutex());
    return ConstMediaIterator(medias().begin(), lock);
}

Track::ConstMediaIterator Track::mediaEnd() const
{
    boost::shared_ptr<SharedReadLock const> const lock = SharedReadLock::acquire(projectMutex());
    return ConstMediaIterator(medias().end(), lock);
}

Track::MediaMap::reverse_iterator Track::mediaRBegin()
{
    return medias().rbegin();
}

Track::MediaMap::reverse_iterator Track::mediaREnd()
{
    return medias().rend();
}

Track::ConstReverseMediaIterator Track::mediaRBegin() const
{
    return ConstReverseMediaIterator(mediaEnd());
}

Track::ConstReverseMediaIterator Track::mediaREnd() const
{
    return ConstReverseMediaIterator(mediaBegin());
}

Track::ConstMediaIterator Track::lower_bound(long long time) const
{
    boost::shared_ptr<SharedReadLock const> const lock = SharedReadLock::acquire(projectMutex());
    return ConstMediaIterator(medias().lower_bound(time), lock);
}

Track::ConstMediaIterator Track::upper_bound(long long time) const
{
    boost::shared_ptr<SharedReadLock const> const lock = SharedReadLock::acquire(projectMutex());
    return ConstMediaIterator(medias().upper_bound(time), lock);
}

// Effects.

int Track::addEffect(boost::shared_ptr<Effect> const& effect)
{
    int const index = m_effects->addEffect(effect);
    notify();
    return index;
}

void Track::insertEffect(boost::shared_ptr<Effect> const& effect, int index)
{
    m_effects->insertEffect(effect, index);
    notify();
}

void Track::swapEffectOrder(int index1, int index2)
{
    m_effects->swapEffectOrder(index1, index2);
    notify();
}

RemovedEffect Track::removeEffect(boost::shared_ptr<Effect const> const& effect)
{
    RemovedEffect const removed = m_effects->removeEffect(effect);
    notify();
    return removed;
}

RemovedEffect Track::removeEffect(int index)
{
    RemovedEffect const removed = m_effects->removeEffect(index);
    notify();
    return removed;
}

boost::shared_ptr<Effect> Track::effectAtIndex(int index)
{
    return m_effects->effectAtIndex(index);
}

boost::shared_ptr<Effect const> Track::effectAtIndex(int index) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    VectorEffectable const& effects = *m_effects;
    return effects.effectAtIndex(index);
}

int Track::numEffects() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_effects->numEffects();
}

// Parameters and their clock.

bool Track::showsAsStored(ParameterInterface const*) const
{
    return true;
}

double Track::toParameterTime(double time) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return time;
}

double Track::fromParameterTime(double time) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return time;
}

long long Track::fromGlobalToParametricTime(long long time) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return time;
}

int Track::numParameters() const
{
    return 0;
}

boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>> Track::parameterVector()
    const
{
    return boost::make_shared<MTVector<boost::shared_ptr<ParameterInterface const>>>(
        projectMutex());
}

// XML.

void Track::xmlName(XMLable::Options& options) const
{
    XmlText(options) << "Track";
}

void Track::xmlAttributes(XMLable::Options&) const {}

void Track::xmlBody(XMLable::Options& options, int indent) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    xmlOfParametersEffectsAttributes(options, indent);
    XmlText(options).indent(indent) << "<Medias>\n";
    for (MediaMap::value_type const& entry : medias()) {
        entry.second->toXML(options, indent + 1, "");
    }
    XmlText(options).indent(indent) << "</Medias>\n";
}

void Track::xmlOfParameters(XMLable::Options&, int) const {}

void Track::xmlOfAttributes(XMLable::Options& options, int indent) const
{
    xmlOfIdentAttribute(options, indent);
}

}  // namespace tarn
