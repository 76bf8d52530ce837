#pragma once

#include "timeline/ImageMedia.h"
#include "timeline/VisualFileMedia.h"

namespace tarn {

/// A still picture taken from one track of a source, of any length and without a bound for trims.
class TARN_API AbstractIMFile : public ImageMedia
{
public:
    /// `start` is where the media begins on its source's clock, edit units.
    /// @throws TarnMediaLibException "trying to make an AbstractIMFile with an invalid source
    /// track"
    AbstractIMFile(long long start, long long duration,
                   boost::weak_ptr<ThreadSafe const> const& project,
                   boost::shared_ptr<Source const> const& source, unsigned int trackNumber);
    /// Of a file known by name only.
    AbstractIMFile(long long start, long long duration,
                   boost::weak_ptr<ThreadSafe const> const& project, Rect<float> const& rect,
                   std::string const& fileName);

    std::string fileName() const;
    std::string containerFileName() const;
    /// The track of its source that it shows, counted from 0.
    unsigned int trackNumber() const;
    /// Empty for a file known by name only.
    boost::shared_ptr<Source const> source() const;
    double width() const override;
    double height() const override;

    /// For a source's own medias only, which must not keep their source alive.
    void holdSourceWeakly();

    bool isInstanceOf(boost::shared_ptr<Source const> const& source) const override;

    std::string description() const override;
    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;

protected:
    /// As large as that track's picture; without a source, of no size.
    AbstractIMFile(long long start, long long duration, SourceTrack const& track,
                   boost::weak_ptr<ThreadSafe const> const& project);
    AbstractIMFile(AbstractIMFile const& other);

private:
    VisualFileMedia m_file;
    Rect<float> m_rect;
};

}  // namespace tarn
