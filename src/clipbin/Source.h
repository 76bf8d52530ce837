#pragma once

#include "clipbin/ClipBinFwd.h"
#include "datatypes/DatatypesFwd.h"
#include "datatypes/Export.h"
#include "datatypes/Range.h"
#include "datatypes/Rect.h"
#include "datatypes/Subject.h"
#include "datatypes/XMLable.h"
#include "project/ProjectFwd.h"
#include "project/SubProject.h"
#include "timeline/TimelineFwd.h"

#include <boost/enable_shared_from_this.hpp>
#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace tarn {

/// One loaded media file: what is in it, and a private timeline with a ready-made media for each of
/// its tracks. Those medias are prototypes to look at and to clone; all are linked to the first.
///
/// Ranges are edit units of the project. The private medias hold their source weakly, every clone
/// of them strongly, so a source lives as long as the bin, a command or a media elsewhere needs it.
/// Queries take the read lock; edits need the write lock. A dead project throws
/// boost::bad_weak_ptr.
class TARN_API Source : public SubProject,
                        public XMLable,
                        public Subject,
                        public boost::enable_shared_from_this<Source>
{
public:
    class MediaIterator;
    template <class T>
    class Iterator;

    /// Reads the file's statistics.
    /// @throws IOException when the file cannot be read
    /// @throws TarnMediaLibException "source has timerange of zero" when its tracks have no time in
    ///         common
    static boost::shared_ptr<Source> create(boost::shared_ptr<ProjectEditRate const> const& rate,
                                            boost::weak_ptr<ThreadSafe const> const& lockOwner,
                                            std::string const& file);
    /// With ready-made statistics, which carry the side files of a screen recording.
    static boost::shared_ptr<Source> create(boost::shared_ptr<ProjectEditRate const> const& rate,
                                            boost::weak_ptr<ThreadSafe const> const& lockOwner,
                                            boost::shared_ptr<MediaFileStats> const& stats);

    /// A source of the same project and state, but of no file: without timeline, statistics and
    /// metadata, and with an empty range.
    Source(Source const& other);
    Source& operator=(Source const& other) = delete;
    ~Source() override;

    /// Second stage of create(), which calls it once.
    void init(boost::shared_ptr<ProjectEditRate const> const& rate, std::string const& file);

    /// What all tracks have in common; a still picture has (0,1).
    Range<long long> timeRange() const;
    /// Owned by the source.
    MediaFileStats const* mediaFileStats() const;
    /// With the prototype medias, one a track; owned by the source.
    boost::shared_ptr<Timeline> timeline();
    boost::shared_ptr<Timeline const> timeline() const;
    /// @throws IndexException
    Rect<float> trackRect(unsigned int track) const;
    /// Always true: a file that cannot be read makes no source.
    bool isOnline() const;

    /// Walks the private medias by track, the visual mixer's first. T is Media const, VisualMedia
    /// const or AudioMedia const.
    template <class T>
    Iterator<T> mediaBegin() const;
    template <class T>
    Iterator<T> mediaEnd() const;

    /// Replaces the file, and with it the names of component and side files that contain the old
    /// name. Everything else that was read from the old file stays. What throws has changed
    /// nothing.
    /// @throws IOException when the new file cannot be read
    /// @throws TarnMediaLibException "attempting to replace source's file with an incompatable
    ///         file" unless the number of tracks is the same, and kind and length of the first
    void changeFile(std::string const& newFile);

    std::string description() const override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

private:
    using ScreenMetaDataMap =
        std::map<boost::shared_ptr<VMFile>, boost::shared_ptr<ScreenMetaData>>;

    Source(boost::weak_ptr<ThreadSafe const> const& lockOwner,
           boost::shared_ptr<MediaFileStats> const& stats);

    void createAndAddMedias(boost::shared_ptr<ProjectEditRate const> const& rate);
    boost::shared_ptr<Media> createMedia(boost::shared_ptr<ProjectEditRate const> const& rate,
                                         unsigned int track);
    boost::shared_ptr<Media> createVideo(boost::shared_ptr<ProjectEditRate const> const& rate,
                                         unsigned int track);
    boost::shared_ptr<Media> createImage(unsigned int track);
    boost::shared_ptr<Media> createAndAddAudioMedias(unsigned int track);
    void addMetaData(boost::shared_ptr<VMFile> const& media, unsigned int track,
                     boost::shared_ptr<ProjectEditRate const> const& rate);
    void addMediaToTimeline(boost::shared_ptr<VisualMedia> const& media);
    void addMediaToTimeline(boost::shared_ptr<AMFile> const& media);
    void updateScreenMetaData(std::string const& oldFile, std::string const& newFile);
    std::vector<std::string> changedTrackFilenames(std::string const& oldFile,
                                                   std::string const& newFile) const;

    boost::shared_ptr<Timeline> m_timeline;
    boost::shared_ptr<MediaFileStats> m_stats;
    bool m_online;
    Range<long long> m_timeRange;
    ScreenMetaDataMap m_screenMetaData;
};

/// A place among a source's private medias, counted by track.
///
/// Holds the project's read lock for its life, and its source not at all: keep it local, and never
/// take it into or out of an edit.
class TARN_API Source::MediaIterator
{
public:
    MediaIterator(Source const* source, int index);
    /// Takes a read lock of its own.
    MediaIterator(MediaIterator const& other);
    MediaIterator& operator=(MediaIterator const& other);
    ~MediaIterator();

    bool operator==(MediaIterator const& other) const;
    bool operator!=(MediaIterator const& other) const { return !(*this == other); }

    /// May step out of the source at either end.
    MediaIterator& operator++();
    MediaIterator& operator--();

    int trackIndex() const;

    /// @name The media here: of either mixer, visual first, or of one mixer by its own index
    /// Empty for a track without one.
    /// @throws IndexException when there is no such track
    /// @{
    boost::shared_ptr<Media const> currentMedia() const;
    boost::shared_ptr<AudioMedia const> currentAudioMedia() const;
    boost::shared_ptr<VisualMedia const> currentVisualMedia() const;
    /// @}

private:
    struct Position;

    std::unique_ptr<Position> m_position;
};

/// A MediaIterator that shows medias as T.
template <class T>
class TARN_API Source::Iterator : public Source::MediaIterator
{
public:
    using MediaIterator::MediaIterator;

    /// @throws IndexException when there is no such track
    boost::shared_ptr<T> operator*() const;
    boost::shared_ptr<T> operator->() const { return **this; }

    Iterator& operator++()
    {
        MediaIterator::operator++();
        return *this;
    }
    Iterator& operator--()
    {
        MediaIterator::operator--();
        return *this;
    }
};

template <>
TARN_API boost::shared_ptr<Media const> Source::Iterator<Media const>::operator*() const;
template <>
TARN_API boost::shared_ptr<VisualMedia const> Source::Iterator<VisualMedia const>::operator*()
    const;
template <>
TARN_API boost::shared_ptr<AudioMedia const> Source::Iterator<AudioMedia const>::operator*() const;

template <class T>
Source::Iterator<T> Source::mediaBegin() const
{
    return Iterator<T>(this, 0);
}

template <>
TARN_API Source::Iterator<Media const> Source::mediaEnd<Media const>() const;
template <>
TARN_API Source::Iterator<VisualMedia const> Source::mediaEnd<VisualMedia const>() const;
template <>
TARN_API Source::Iterator<AudioMedia const> Source::mediaEnd<AudioMedia const>() const;

}  // namespace tarn
