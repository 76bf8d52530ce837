#pragma once

#include "datatypes/FileRepresentation.h"
#include "datatypes/LateObject.h"
#include "timeline/VideoMedia.h"
#include "timeline/VisualFileMedia.h"

namespace tarn {

/// A video taken from one track of a source. A screen recording's video also carries what was
/// recorded beside the picture.
class TARN_API VMFile : public VideoMedia, public FileRepresentation
{
public:
    /// `range` is edit units on the source's clock; trims are bounded by the source's time range.
    /// @throws TarnMediaLibException "trying to make a vmfile with an invalid source track"
    VMFile(Range<long long> const& range, boost::weak_ptr<ThreadSafe const> const& project,
           boost::shared_ptr<Source const> const& source, unsigned int trackNumber);
    /// Of a file known by name only; trims are bounded by `range` itself.
    VMFile(Range<long long> const& range, boost::weak_ptr<ThreadSafe const> const& project,
           Rect<float> const& rect, std::string const& fileName);

    std::string fileName() const override;
    std::string containerFileName() const override;
    /// The track of its source that it shows, counted from 0.
    unsigned int trackNumber() const;
    /// Empty for a file known by name only.
    boost::shared_ptr<Source const> source() const;
    double width() const override;
    double height() const override;
    /// What was recorded beside the picture; its value is empty for any other video.
    boost::shared_ptr<Attribute<boost::shared_ptr<ScreenMetaData const>>> screenMetaData();
    boost::shared_ptr<Attribute<boost::shared_ptr<ScreenMetaData const>> const> screenMetaData()
        const;
    /// Decoding is the host's: does nothing.
    void grabFrame(double time);

    /// For a source's own medias only, which must not keep their source alive.
    void holdSourceWeakly();

    void receiveDispatcher(ConstMediaDispatcher* dispatcher) const override;
    void receiveDispatcher(MediaDispatcher* dispatcher) override;
    bool isInstanceOf(boost::shared_ptr<Source const> const& source) const override;
    VMFile* clone() const override;

    std::string description() const override;
    int numAttributes() const override;
    void xmlOfAttributes(XMLable::Options& options, int indent) const override;
    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

protected:
    VMFile(VMFile const& other);

private:
    friend class MediaImpl;  // its cloneOf() copies

    using MetaDataAttribute = Attribute<boost::shared_ptr<ScreenMetaData const>>;

    boost::shared_ptr<MetaDataAttribute> const& metaDataAttribute() const;

    /// Takes the track over.
    VMFile(Range<long long> const& range, SourceTrack&& track,
           boost::weak_ptr<ThreadSafe const> const& project);
    /// `limits`: what the source offers.
    VMFile(Range<long long> const& range, Range<long long> const& limits, Rect<float> const& rect,
           SourceTrack&& track, boost::weak_ptr<ThreadSafe const> const& project);

    VisualFileMedia m_file;
    Rect<float> m_rect;
    LateObject<MetaDataAttribute, 1> m_screenMetaData;
};

}  // namespace tarn
