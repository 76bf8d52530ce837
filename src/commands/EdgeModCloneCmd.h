#pragma once

#include "commands/Command.h"
#include "edgemods/EdgeModification.h"
#include "edgemods/EdgeModsFwd.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

#include <vector>

namespace tarn {

/// Clones a media for a cut and divides the edges between the two: the media keeps the left
/// modifications, the clone has the right ones.
///
/// The clone is made once, so that redo gives the same object. Undo gives the media back the length
/// that its right edge showed, which may be less than what was stored.
class TARN_API EdgeModCloneCmd : public Command
{
public:
    static boost::shared_ptr<EdgeModCloneCmd> create(boost::shared_ptr<Media const> const& media);

    EdgeModCloneCmd* clone() const override;
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;
    bool reexecute(CommandHandler* handler) override;

    /// Empty until executed.
    boost::shared_ptr<Media> mediaClone() const { return m_clone; }

    void xmlName(XMLable::Options& options) const override;

private:
    explicit EdgeModCloneCmd(boost::shared_ptr<Media const> const& media);

    void divideEdges(EdgeModCommandHandler* edgeHandler);
    void setupClone();
    void setupCloner(EdgeModCommandHandler* edgeHandler);
    void resetCloner(EdgeModCommandHandler* edgeHandler);

    boost::shared_ptr<Media const> m_media;
    boost::shared_ptr<Media> m_clone;
    long long m_rightLength;
    // What was taken off the media, the last first. The clone's own copies cannot serve undo: their
    // functions name the clone.
    std::vector<EdgeModification> m_removedRightMods;
};

}  // namespace tarn
