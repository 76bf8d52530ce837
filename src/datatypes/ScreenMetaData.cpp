#include "datatypes/ScreenMetaData.h"

#include "datatypes/ScreenMetaDataImpl.h"

namespace tarn {

ScreenMetaDataLoader* ScreenMetaData::s_lazyLoader = nullptr;

ScreenMetaData* ScreenMetaData::create(boost::weak_ptr<ThreadSafe const> const& lockOwner,
                                       boost::weak_ptr<FileRepresentation const> const& parent,
                                       boost::weak_ptr<ProjectEditRate const> const& rate)
{
    return new ScreenMetaDataImpl(lockOwner, parent, rate);
}

ScreenMetaData* ScreenMetaData::create(boost::weak_ptr<ThreadSafe const> const& lockOwner,
                                       boost::weak_ptr<ProjectEditRate const> const& rate)
{
    return create(lockOwner, boost::weak_ptr<FileRepresentation const>(), rate);
}

void ScreenMetaData::setLazyLoader(ScreenMetaDataLoader* loader)
{
    s_lazyLoader = loader;
}

ScreenMetaDataLoader* ScreenMetaData::lazyLoader()
{
    return s_lazyLoader;
}

}  // namespace tarn
