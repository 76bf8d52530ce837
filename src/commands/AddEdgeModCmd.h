#pragma once

#include "commands/Command.h"
#include "edgemods/EdgeModification.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

/// Puts a modification on one edge of a media; which edge is the subclass's.
///
/// The function added is a copy of the one given, aimed at the media and the visual mixer it is on,
/// or at nothing for a media outside the visual mixer.
/// @throws TarnMediaLibException on execution when the parameter has a modification on that edge
class TARN_API AddEdgeModCmd : public Command
{
public:
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;

protected:
    AddEdgeModCmd(boost::shared_ptr<Media const> const& media, EdgeModification const& edgeMod);

    virtual void addEdgeMod(CommandHandler* handler, boost::shared_ptr<Media const> const& media,
                            EdgeModification const& edgeMod) = 0;
    virtual void removeEdgeMod(CommandHandler* handler, boost::shared_ptr<Media const> const& media,
                               EdgeModification const& edgeMod) = 0;

private:
    boost::shared_ptr<Media const> m_media;
    EdgeModification m_edgeMod;
};

}  // namespace tarn
