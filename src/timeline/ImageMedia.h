#pragma once

#include "timeline/StaticEditor.h"
#include "timeline/VisualMedia.h"

namespace tarn {

/// A still picture, which can be trimmed to any length. Its key frames lie on the clock that begins
/// where the picture would begin had its start never been trimmed.
class TARN_API ImageMedia : public VisualMedia
{
public:
    ImageMedia(long long start, long long duration, double mediaStartLimit, double mediaEndLimit,
               boost::weak_ptr<ThreadSafe const> const& project);

    /// The sum of all start trims, edit units.
    long long trimStartSum() const;

    double toParameterTime(double time) const override;
    double fromParameterTime(double time) const override;

    MediaEditor& mediaEditor() override { return m_editor; }
    MediaEditor const& mediaEditor() const override { return m_editor; }

    std::string description() const override;
    void xmlName(XMLable::Options& options) const override;

protected:
    ImageMedia(ImageMedia const& other);

private:
    long long m_trimStartSum;  // before the editor, which points to it
    StaticEditor m_editor;
};

}  // namespace tarn
