#pragma once

#include "datatypes/Export.h"
#include "timeline/TimelineFwd.h"

#include <boost/weak_ptr.hpp>

namespace tarn {

/// Where the media of an edge function is seen, for functions that measure against the mixer.
///
/// Both are set or both are empty; neither is kept alive. A value, without a lock.
class TARN_API AuxEdgeModInfo
{
public:
    /// The mixer across which the media is seen.
    void setVisualMixer(boost::weak_ptr<VisualMixer const> const& visualMixer)
    {
        m_visualMixer = visualMixer;
    }
    /// The media that the function is on.
    void setVisualMedia(boost::weak_ptr<VisualMedia const> const& visualMedia)
    {
        m_visualMedia = visualMedia;
    }

    boost::weak_ptr<VisualMixer const> visualMixer() const { return m_visualMixer; }
    boost::weak_ptr<VisualMedia const> visualMedia() const { return m_visualMedia; }

private:
    boost::weak_ptr<VisualMixer const> m_visualMixer;
    boost::weak_ptr<VisualMedia const> m_visualMedia;
};

}  // namespace tarn
