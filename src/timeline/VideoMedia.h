#pragma once

#include "timeline/TemporalEditor.h"
#include "timeline/VisualMedia.h"

namespace tarn {

/// A moving picture: trims are bounded by what its source offers.
class TARN_API VideoMedia : public VisualMedia
{
public:
    VideoMedia(Range<long long> const& sourceRange, double mediaStartLimit, double mediaEndLimit,
               boost::weak_ptr<ThreadSafe const> const& project);

    MediaEditor& mediaEditor() override { return m_editor; }
    MediaEditor const& mediaEditor() const override { return m_editor; }

    std::string description() const override;
    void xmlName(XMLable::Options& options) const override;

protected:
    VideoMedia(VideoMedia const& other);

private:
    TemporalEditor m_editor;
};

}  // namespace tarn
