#pragma once

#include "exceptions/TarnMediaLibException.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

#include <list>

namespace tarn {

/// A media would lie where others do; nothing was changed. what() is "Collision exception."
class TARN_API CollisionException : public TarnMediaLibException
{
public:
    using MediaList = std::list<boost::shared_ptr<Media const>>;

    explicit CollisionException(boost::shared_ptr<MediaList> const& medias);

    /// What is in the way.
    boost::shared_ptr<MediaList> const& medias() const { return m_medias; }

private:
    boost::shared_ptr<MediaList> m_medias;
};

}  // namespace tarn
