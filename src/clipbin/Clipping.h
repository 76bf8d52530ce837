#pragma once

#include "clipbin/ClipBinFwd.h"
#include "datatypes/Export.h"
#include "datatypes/Range.h"
#include "datatypes/XMLable.h"
#include "parameters/ParametersFwd.h"
#include "project/SubProject.h"
#include "timeline/MediaCollections.h"

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <map>
#include <string>

namespace tarn {

/// What a copy leaves behind: a private timeline with clones, the earliest of which starts at 0,
/// and where each of its tracks stood, counted from the topmost copied one.
///
/// Shares no media with the project. Its medias lie on its own tracks: clone them to place them.
/// The copying constructors read under the read lock; a dead project throws boost::bad_weak_ptr.
class TARN_API Clipping : public SubProject, public XMLable
{
public:
    using TrackPositions = std::map<boost::shared_ptr<Track const>, int>;

    /// What lies in `range` (edit units of the timeline) on the tracks, and on those that medias
    /// there are linked to.
    /// @throws ValueException<std::string> "trying to make a clipping with no medias", with the
    /// name
    /// @throws DanglingWeakPtrException<Track const> for a media on a track that is gone
    Clipping(boost::shared_ptr<Timeline const> const& timeline, Range<long long> const& range,
             ConstTrackSet const& tracks, std::string const& name);
    /// These medias as a whole, without what they are linked to. Throws as above.
    Clipping(boost::shared_ptr<Timeline const> const& timeline, ConstMediaVector const& medias,
             std::string const& name);
    /// From parts that exist already.
    Clipping(std::string const& name, boost::shared_ptr<Timeline> const& timeline,
             TrackPositions const& positions, boost::weak_ptr<ThreadSafe const> const& project);

    /// The name that the copy was given.
    std::string name() const;
    /// The name as an attribute, whose observers hear of a change.
    boost::shared_ptr<Attribute<std::string>> nameAttribute() { return m_name; }
    boost::shared_ptr<Attribute<std::string> const> nameAttribute() const { return m_name; }
    /// The private timeline, owned by the clipping.
    boost::shared_ptr<Timeline> timeline() { return m_timeline; }
    boost::shared_ptr<Timeline const> timeline() const { return m_timeline; }

    /// Where a track of this clipping stood in its own mixer. Visual and audio tracks count from
    /// the one same lowest position.
    /// @throws ValueException<boost::shared_ptr<Track const>> "track not in clipping"
    int trackPosition(boost::shared_ptr<Track const> const& track) const;

    std::string description() const override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

private:
    Clipping(Clipping const& other) = delete;
    Clipping& operator=(Clipping const& other) = delete;

    void settleClones(Timeline const& origin, MediaCloneMap const& clones);

    boost::shared_ptr<Attribute<std::string>> m_name;
    boost::shared_ptr<Timeline> m_timeline;
    TrackPositions m_trackPositions;
};

}  // namespace tarn
