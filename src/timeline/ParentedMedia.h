#pragma once

#include "datatypes/Export.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

/// A media on its way through its track's hands. Only a media with a live parent may be edited like
/// this, since its start is the key of an entry in the parent's map. For edits, under the write
/// lock.
class TARN_API ParentedMedia
{
public:
    explicit ParentedMedia(boost::shared_ptr<Media> const& media);

    /// @throws ValueException<boost::shared_ptr<Media>> when no live track holds the media
    void assertParented() const;

    /// The media, checked once more.
    Media* operator->() const;

    boost::shared_ptr<Media> const& media() const;

private:
    boost::shared_ptr<Media> m_media;
};

}  // namespace tarn
