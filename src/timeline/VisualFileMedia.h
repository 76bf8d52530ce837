#pragma once

#include "datatypes/FileRepresentation.h"
#include "datatypes/TarnObject.h"
#include "timeline/SourceTrack.h"

namespace tarn {

/// The way from a file-backed picture to its source. Owned by the media, never a base of one. No
/// lock, as SourceTrack.
class TARN_API VisualFileMedia : public TarnObject, public FileRepresentation
{
public:
    explicit VisualFileMedia(SourceTrack track);

    std::string description() const override;
    std::string fileName() const override;
    std::string containerFileName() const override;

    /// Empty for a file known by name only.
    boost::shared_ptr<Source const> source() const;
    /// Counted from 0.
    unsigned int trackNumber() const;
    /// Whether it is of that very source; false for an empty one.
    bool isInstanceOf(boost::shared_ptr<Source const> const& source) const;
    std::string sourceXmlIdent() const;
    /// For a source's own medias only, which must not keep their source alive.
    void holdSourceWeakly();

private:
    SourceTrack m_track;
};

}  // namespace tarn
