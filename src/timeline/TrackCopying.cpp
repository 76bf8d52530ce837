#include "timeline/Track.h"

#include "datatypes/Range.h"
#include "datatypes/SaturatedArithmetic.h"
#include "edgemods/EdgeModification.h"
#include "project/ReadWriteMutex.h"
#include "timeline/IntersectingMedias.h"
#include "timeline/Media.h"

#include <list>

// Clones of a track and of its parts.

namespace tarn {

namespace {

void removeLeftEdgeMods(Media& clone)
{
    for (EdgeModification const& modification : clone.leftEdgeModifications()) {
        clone.removeLeftEdgeModification(modification.parameter());
    }
}

void removeRightEdgeMods(Media& clone)
{
    for (EdgeModification const& modification : clone.rightEdgeModifications()) {
        clone.removeRightEdgeModification(modification.parameter());
    }
}

void setupLeftEdgeMods(Range<long long> const& range, Media const& media, Media& clone)
{
    long long const length = media.leftEdgeModificationLength();
    Range<long long> const edge(media.placedRange().start, length);
    long long const common = range.intersection(edge).duration;
    if (common < length) {
        removeLeftEdgeMods(clone);
    } else {
        clone.setLeftEdgeModificationLength(common);
    }
}

void setupRightEdgeMods(Range<long long> const& range, Media const& media, Media& clone)
{
    long long const length = media.rightEdgeModificationLength();
    Range<long long> const edge(saturatedDifference(media.placedRange().end(), length), length);
    long long const common = range.intersection(edge).duration;
    if (common < length) {
        removeRightEdgeMods(clone);
    } else {
        clone.setRightEdgeModificationLength(common);
    }
}

/// Leaves the clone the edge modifications that lie within the portion as a whole.
void setupCloneEdgeMods(Range<long long> const& range, Media const& media, Media& clone)
{
    setupLeftEdgeMods(range, media, clone);
    setupRightEdgeMods(range, media, clone);
}

void noteClone(MediaCloneMap* map, boost::shared_ptr<Media const> const& media,
               boost::shared_ptr<Media> const& clone)
{
    if (map) {
        // Pointers mostly rise as the medias do.
        map->emplace_hint(map->end(), media, clone);
    }
}

}  // namespace

void Track::setupSharedClone(boost::shared_ptr<Track> const& clone) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    for (MediaMap::value_type const& entry : medias()) {
        boost::shared_ptr<Media> const mediaClone = sharedClone<Media>(entry.second);
        clone->addMedia(mediaClone, mediaClone->placedRange().start);
    }
}

boost::shared_ptr<Track> Track::copyPortion(ConstMediaVector const& medias,
                                            MediaCloneMap* map) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    boost::shared_ptr<Track> const copy(clone());
    for (boost::shared_ptr<Media const> const& media : medias) {
        boost::shared_ptr<Media> const mediaClone = sharedClone<Media>(media);
        copy->addMedia(mediaClone, mediaClone->placedRange().start);
        noteClone(map, media, mediaClone);
    }
    return copy;
}

boost::shared_ptr<Track> Track::copyPortion(Range<long long> const& range, MediaCloneMap* map) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    boost::shared_ptr<Track> const copy(clone());
    visitIntersecting(
        medias(), range, [&](boost::shared_ptr<Media> const& media, Range<long long> const& part) {
            boost::shared_ptr<Media> const mediaClone = sharedClone<Media>(media);
            assertParentless(mediaClone);
            mediaClone->trimStart(part.start - mediaClone->placedRange().start);
            mediaClone->trimEnd(mediaClone->placedRange().end() - part.start - part.duration);
            setupCloneEdgeMods(range, *media, *mediaClone);
            copy->addMedia(mediaClone, mediaClone->placedRange().start);
            noteClone(map, media, mediaClone);
            return true;
        });
    return copy;
}

}  // namespace tarn
