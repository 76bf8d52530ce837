#pragma once

#include "datatypes/Export.h"
#include "timeline/AbstractVisualTrack.h"

namespace tarn {

/// A track for every kind of picture: videos, stills, transitions, texts and callouts.
class TARN_API VisualTrack : public AbstractVisualTrack
{
public:
    explicit VisualTrack(boost::weak_ptr<ThreadSafe const> const& project);

    void receiveDispatcher(ConstTrackDispatcher* dispatcher) const override;
    void receiveDispatcher(TrackDispatcher* dispatcher) override;

    void addMedia(boost::shared_ptr<Media> const& media, long long time) override;

    VisualTrack* clone() const override;

    MediaMap& medias() override;
    MediaMap const& medias() const override;
    MediaMapView<VisualMedia> visualMedias() override;
    MediaMapView<VisualMedia const> visualMedias() const override;

    void xmlName(XMLable::Options& options) const override;

private:
    class MediaAdder;

    VisualTrack(VisualTrack const& other);

    MediaMap m_medias;
};

}  // namespace tarn
