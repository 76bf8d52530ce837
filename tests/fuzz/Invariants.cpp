#include "fuzz/Invariants.h"

#include "fuzz/Stage.h"

#include "timeline/AbstractVisualTrack.h"
#include "timeline/AudioMedia.h"
#include "timeline/AudioMixer.h"
#include "timeline/AudioTrack.h"
#include "timeline/ImageMedia.h"
#include "timeline/MediaImpl.h"
#include "timeline/Timeline.h"
#include "timeline/VisualMedia.h"
#include "timeline/VisualMixer.h"

#include <cmath>
#include <set>
#include <sstream>

namespace tarn {
namespace test {
namespace {

/// Looks at a model and notes what is wrong.
class Inspection
{
public:
    explicit Inspection(std::vector<Broken>& broken) : m_broken(broken) {}

    template <class M>
    void inspectMixer(boost::shared_ptr<Mixer> const& mixer)
    {
        if (!mixer)
            return;
        for (boost::shared_ptr<Track> const& track : mixer->trackList())
            inspectTrack<M>(*track);
    }

private:
    void note(Breach breach, std::string const& text) { m_broken.push_back({breach, text}); }

    template <class M>
    void inspectTrack(Track const& track)
    {
        bool isFirst = true;
        long long end = 0;
        for (auto const& entry : track.medias()) {
            Media const& media = *entry.second;
            Range<long long> const range = media.trackRange();
            if (range.start != entry.first)
                note(Breach::KeyIsNotStart, at(entry.first) + "holds a media that starts at " +
                                                std::to_string(range.start));
            if (media.parentTrack().lock().get() != &track)
                note(Breach::WrongParent, at(entry.first) + "has another parent");
            if (!dynamic_cast<M const*>(&media))
                note(Breach::WrongKind, at(entry.first) + "is of the wrong kind");
            if (range.duration < 0)
                note(Breach::NegativeLength, at(entry.first) + "has a negative length");
            if (!isFirst && range.start < end && range.duration > 0)
                note(Breach::Overlap, at(entry.first) + "overlaps the one before");
            end = isFirst ? range.end() : std::max(end, range.end());
            isFirst = false;
            if (m_seen.insert(&media).second) {
                inspectTimes(static_cast<MediaImpl const&>(media));
                inspectLinks(media);
            }
        }
    }

    void inspectTimes(MediaImpl const& media)
    {
        if (dynamic_cast<ImageMedia const*>(&media))
            return;  // no time axis
        Range<double> const shown = media.mediaRange();
        // The rules compare times coarsely: less than one unit apart is equal.
        if (!(shown.start > media.mediaStartLimit() - 1) ||
            !(shown.start < media.mediaEndLimit()) || !(shown.duration < media.mediaEndLimit() + 1))
            note(Breach::BeyondMediaLimits, at(media.trackRange().start) + "shows from " +
                                                std::to_string(shown.start) + " for " +
                                                std::to_string(shown.duration));
        double const expected = shown.duration * media.scalar();
        double const length = static_cast<double>(media.trackRange().duration);
        if (!(std::fabs(expected - length) <= std::max(1.0, media.scalar())))
            note(Breach::ScalarDisagrees, at(media.trackRange().start) + "is " +
                                              std::to_string(length) + " long and not " +
                                              std::to_string(expected));
    }

    void inspectLinks(Media const& media)
    {
        Media& links = const_cast<Media&>(media);  // the plain iterators, which lock nothing
        for (auto link = links.linkBegin(); link != links.linkEnd(); ++link) {
            boost::shared_ptr<Media> const other = link->lock();
            if (!other) {
                note(Breach::DeadLink, at(media.trackRange().start) + "has a dead link");
                continue;
            }
            if (other.get() == &media || !other->isLinkedWith(media.shared_from_this()))
                note(Breach::NoMesh, at(media.trackRange().start) + "is linked one way");
            for (auto next = links.linkBegin(); next != links.linkEnd(); ++next) {
                boost::shared_ptr<Media> const third = next->lock();
                if (third && third != other && !other->isLinkedWith(third))
                    note(Breach::NoMesh, at(media.trackRange().start) + "is in no full mesh");
            }
            if (other->trackRange() != media.trackRange())
                note(Breach::UnequalTrackRanges, at(media.trackRange().start) +
                                                     "is linked with one that starts at " +
                                                     std::to_string(other->trackRange().start));
            else if (other->mediaRange() != media.mediaRange())
                note(Breach::UnequalMediaRanges,
                     at(media.trackRange().start) + "is linked with one of another media range");
        }
    }

    static std::string at(long long start) { return "the media at " + std::to_string(start) + " "; }

    std::vector<Broken>& m_broken;
    std::set<Media const*> m_seen;
};

}  // namespace

std::vector<Broken> brokenInvariants(Stage const& stage)
{
    std::vector<Broken> broken;
    Inspection inspection(broken);
    inspection.inspectMixer<VisualMedia>(stage.timeline()->visualMixer());
    inspection.inspectMixer<AudioMedia>(stage.timeline()->audioMixer());
    return broken;
}

}  // namespace test
}  // namespace tarn
