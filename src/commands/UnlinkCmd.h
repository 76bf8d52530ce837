#pragma once

#include "commands/MultiCommand.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

///     before   A1: aaa... / V1: aaa...
///     after    A1: aaa... / V1: bbb...
///
/// Takes a media out of its link group; the others stay linked among themselves. Undo appends the
/// links, so their order may differ.
/// @throws TarnMediaLibException on execution when a linked media has another track range
/// @throws DanglingWeakPtrException<Media const> on execution for a dead link
class TARN_API UnlinkCmd : public MultiCommand
{
public:
    static boost::shared_ptr<UnlinkCmd> create(boost::shared_ptr<Media const> const& media);

    UnlinkCmd* clone() const override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;

protected:
    void executeCommands(CommandHandler const* handler) override;

private:
    explicit UnlinkCmd(boost::shared_ptr<Media const> const& media);

    boost::shared_ptr<Media const> m_media;
};

}  // namespace tarn
