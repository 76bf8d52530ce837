#include "timeline/ParentedMedia.h"

#include "exceptions/ValueException.h"
#include "timeline/Media.h"

namespace tarn {

ParentedMedia::ParentedMedia(boost::shared_ptr<Media> const& media) : m_media(media) {}

void ParentedMedia::assertParented() const
{
    if (!m_media->isPlaced()) {
        throw ValueException<boost::shared_ptr<Media>>(
            "trying to edit a parentless media like a parented media", m_media);
    }
}

Media* ParentedMedia::operator->() const
{
    assertParented();
    return m_media.get();
}

boost::shared_ptr<Media> const& ParentedMedia::media() const
{
    return m_media;
}

}  // namespace tarn
