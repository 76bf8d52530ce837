#pragma once

#include "datatypes/DatatypesFwd.h"
#include "datatypes/Export.h"
#include "datatypes/Point.h"
#include "timeline/ConstMediaDispatcher.h"

namespace tarn {

/// Tests one media against a ray, in the media's own plane: send it to the media, then ask.
///
/// Refers to what it was made with, and so lives no longer than that. Takes read locks as it goes.
class TARN_API VisualMediaHitTester : public ConstMediaDispatcher
{
public:
    /// @param rayDirection one long
    /// @param time on the timeline, edit units
    VisualMediaHitTester(Point const& rayOrigin, Point const& rayDirection,
                         TransformMatrix const& trackTransform, long long time);

    /// Of the media that was dispatched last.
    bool doesHit() const { return m_hits; }
    /// In the coordinates of the media hit; that of the last hit, if there was any.
    Point hitLocation() const { return m_hitLocation; }

    /// Borders count as inside. A plane seen edge-on, or behind the origin, is not hit.
    bool rayHitsVisualMedia(boost::shared_ptr<VisualMedia const> const& media);

    void dispatchMedia(boost::shared_ptr<VMFile const> const& media) override;
    /// @throws TypeException "Audio media can't be tested for geometry"
    void dispatchMedia(boost::shared_ptr<AMFile const> const& media) override;
    void dispatchMedia(boost::shared_ptr<IMFile const> const& media) override;
    /// A transition is hit where either neighbour is.
    /// @throws boost::bad_weak_ptr when it is on no track
    void dispatchMedia(boost::shared_ptr<ImageTransition const> const& media) override;
    /// @throws TypeException "Audio media can't be tested for geometry"
    void dispatchMedia(boost::shared_ptr<AudioTransition const> const& media) override;
    void dispatchMedia(boost::shared_ptr<TextBox const> const& media) override;
    void dispatchMedia(boost::shared_ptr<Callout const> const& media) override;

private:
    bool rayHitsNeighbour(boost::shared_ptr<Media const> const& neighbour);

    Point const& m_rayOrigin;
    Point const& m_rayDirection;
    TransformMatrix const& m_trackTransform;
    bool m_hits;
    long long m_time;
    Point m_hitLocation;
};

}  // namespace tarn
