#pragma once

#include "datatypes/Range.h"
#include "timeline/Media.h"
#include "timeline/Track.h"

#include <iterator>

// For the pieces of Track alone.
namespace tarn {

/// The last media that starts at or before `time`, or the first of all. The map is not empty.
inline Track::MediaMap::const_iterator lastStartingBy(Track::MediaMap const& medias, long long time)
{
    Track::MediaMap::const_iterator const after = medias.upper_bound(time);
    return after == medias.begin() ? after : std::prev(after);
}

/// Shows the medias that share an edit unit with `range`, and what each shares, to `visit`, in time
/// order, for as long as it returns true.
template <class Visit>
void visitIntersecting(Track::MediaMap const& medias, Range<long long> const& range, Visit visit)
{
    // A trim is probed before it is refused, so a range may come here turned inside out.
    if (range.duration <= 0 || medias.empty()) {
        return;
    }
    long long const end = range.end();
    for (auto entry = lastStartingBy(medias, range.start);
         entry != medias.end() && entry->first <= end; ++entry) {
        boost::shared_ptr<Media> const& media = entry->second;
        Range<long long> const shared = media->placedRange().intersection(range);
        if (shared.duration > 0 && !visit(media, shared)) {
            return;
        }
    }
}

}  // namespace tarn
