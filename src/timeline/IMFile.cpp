#include "timeline/IMFile.h"

#include "timeline/ConstMediaDispatcher.h"
#include "timeline/MediaDispatcher.h"

#include <ostream>

namespace tarn {

IMFile::IMFile(IMFile const& other) : XMLIdentified(other), AbstractIMFile(other) {}

void IMFile::receiveDispatcher(ConstMediaDispatcher* dispatcher) const
{
    dispatcher->dispatchMedia(boost::static_pointer_cast<IMFile const>(shared_from_this()));
}

void IMFile::receiveDispatcher(MediaDispatcher* dispatcher)
{
    dispatcher->dispatchMedia(boost::static_pointer_cast<IMFile>(shared_from_this()));
}

IMFile* IMFile::clone() const
{
    return cloneOf(*this);
}

std::string IMFile::description() const
{
    return "imfile";
}

void IMFile::xmlName(XMLable::Options& options) const
{
    *options.stream << "IMFile";
}

}  // namespace tarn
