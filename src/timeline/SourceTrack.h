#pragma once

#include "clipbin/ClipBinFwd.h"
#include "datatypes/Export.h"
#include "datatypes/Range.h"
#include "datatypes/Rect.h"

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <string>

namespace tarn {

/// Where a media's material comes from: one track of a source, or a bare file name.
///
/// Holds its source strongly, so that a media can always be shown. Only the medias that a source
/// owns itself hold it weakly, or neither would ever die; a copy of those is strong again. File
/// names are read from the source each time, since its file can be replaced. No lock: its media
/// takes one where that is needed.
class TARN_API SourceTrack
{
public:
    /// @throws TarnMediaLibException `refusal` when the source is empty or lacks that track
    SourceTrack(boost::shared_ptr<Source const> const& source, unsigned int trackNumber,
                char const* refusal);
    explicit SourceTrack(std::string const& fileName);
    SourceTrack(SourceTrack const& other);
    SourceTrack(SourceTrack&& other) = default;
    SourceTrack& operator=(SourceTrack const& other) = delete;

    /// Empty when there is only a file name.
    boost::shared_ptr<Source const> source() const;
    /// Counted from 0.
    unsigned int trackNumber() const { return m_trackNumber; }
    /// The track's own file in a bundle, otherwise the source's file.
    std::string fileName() const;
    std::string containerFileName() const;

    /// Whether it is of that very source; false for an empty one.
    bool isInstanceOf(boost::shared_ptr<Source const> const& source) const;
    /// For a source's own medias only, which must not keep their source alive.
    void holdSourceWeakly();

    /// Empty without a source.
    Rect<float> rect() const;

    /// These need a source. Edit units of the project.
    Range<long long> timeRange() const;
    unsigned int sampleRate() const;
    unsigned int bitDepth() const;
    unsigned int numChannels() const;

    /// The source's ident as a decimal number, empty without one.
    std::string sourceXmlIdent() const;

private:
    class SourceInUse;

    boost::shared_ptr<Source const> m_strongSource;
    boost::weak_ptr<Source const> m_source;
    unsigned int m_trackNumber;
    std::string m_fileName;
};

}  // namespace tarn
