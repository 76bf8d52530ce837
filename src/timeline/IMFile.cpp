#include "timeline/IMFile.h"

#include "datatypes/XmlText.h"
#include "timeline/ConstMediaDispatcher.h"
#include "timeline/MediaDispatcher.h"

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
    XmlText(options) << "IMFile";
}

}  // namespace tarn
