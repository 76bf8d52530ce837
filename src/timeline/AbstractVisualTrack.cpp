#include "timeline/AbstractVisualTrack.h"

#include "datatypes/XmlText.h"
#include "parameters/MTVector.h"
#include "project/ReadWriteMutex.h"
#include "timeline/VisualMedia.h"

#include <algorithm>

namespace tarn {

AbstractVisualTrack::AbstractVisualTrack(boost::weak_ptr<ThreadSafe const> const& project)
    : Track(project), Transformer(project)
{}

AbstractVisualTrack::AbstractVisualTrack(AbstractVisualTrack const& other)
    : XMLIdentified(other), Track(other), Transformer(other)
{}

AbstractVisualTrack::VisualMediaIterator AbstractVisualTrack::visualMediaBegin()
{
    return VisualMediaIterator(mediaBegin());
}

AbstractVisualTrack::VisualMediaIterator AbstractVisualTrack::visualMediaEnd()
{
    return VisualMediaIterator(mediaEnd());
}

AbstractVisualTrack::ConstVisualMediaIterator AbstractVisualTrack::visualMediaBegin() const
{
    return ConstVisualMediaIterator(mediaBegin());
}

AbstractVisualTrack::ConstVisualMediaIterator AbstractVisualTrack::visualMediaEnd() const
{
    return ConstVisualMediaIterator(mediaEnd());
}

AbstractVisualTrack::ConstVisualMediaIterator AbstractVisualTrack::typeSafeMediaBegin() const
{
    return visualMediaBegin();
}

AbstractVisualTrack::ConstVisualMediaIterator AbstractVisualTrack::typeSafeMediaEnd() const
{
    return visualMediaEnd();
}

boost::shared_ptr<TrackSubSection<VisualMedia>> AbstractVisualTrack::subSection(
    Range<long long> const& range) const
{
    return subSectionImpl(this, range);
}

bool AbstractVisualTrack::allMediasAreVisualMedias() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return std::all_of(medias().begin(), medias().end(), [](MediaMap::value_type const& entry) {
        return dynamic_cast<VisualMedia const*>(entry.second.get()) != nullptr;
    });
}

int AbstractVisualTrack::numParameters() const
{
    return 14;
}

boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>>
AbstractVisualTrack::parameterVector() const
{
    boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>> const parameters =
        Track::parameterVector();
    addTransformerParametersToParameters(this, parameters.get());
    return parameters;
}

void AbstractVisualTrack::xmlName(XMLable::Options& options) const
{
    XmlText(options) << "AbstractVisualTrack";
}

void AbstractVisualTrack::xmlBody(XMLable::Options& options, int indent) const
{
    Track::xmlBody(options, indent);
    genXMLForTransformer(options, indent);
}

}  // namespace tarn
