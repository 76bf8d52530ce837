#include "script/Soundness.h"

#include "script/Model.h"
#include "script/ModelText.h"

namespace tarn::tool {

namespace {

std::string faultOfLinks(Stage const& stage, boost::shared_ptr<Media const> const& media)
{
    for (boost::shared_ptr<Media const> const& other : linksOf(*media)) {
        if (other == media || !other->isLinkedWith(media))
            return "is linked one way with " + mediaText(stage, other);
        if (other->trackRange() != media->trackRange())
            return "is linked with " + mediaText(stage, other);
        for (boost::shared_ptr<Media const> const& third : linksOf(*media))
            if (third != other && !other->isLinkedWith(third))
                return "is in a link group with a gap";
    }
    return "";
}

std::string faultOfMedia(Stage const& stage, Track const& track,
                         boost::shared_ptr<Media const> const& media, long long previousEnd)
{
    if (media->parentTrack().lock().get() != &track)
        return "belongs to another track";
    if (media->duration() < 1)
        return "has no length";
    if (media->startTime() < previousEnd)
        return "overlaps the one before";
    return faultOfLinks(stage, media);
}

}  // namespace

std::string unsoundness(Stage const& stage)
{
    for (NamedTrack const& track : tracksOf(*stage.timeline())) {
        auto const medias = mediasOf(*track.track);
        for (std::size_t i = 0; i < medias.size(); ++i) {
            long long const previousEnd =
                i == 0 ? medias[i]->startTime() : medias[i - 1]->endTime();
            std::string const fault = faultOfMedia(stage, *track.track, medias[i], previousEnd);
            if (!fault.empty())
                return mediaText(stage, medias[i]) + " " + fault;
        }
    }
    return "";
}

}  // namespace tarn::tool
