#pragma once

#include "commands/MultiCommand.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

///     before   A1: aaa... / V1: bbb...
///     after    A1: aaa... / V1: aaa...
///
/// Joins two medias and all that they are linked to into one group, in which each is linked to
/// every other. All must have equal track ranges and equal media ranges.
/// @throws TarnMediaLibException on execution when two are not linkable, or linked already
/// @throws DanglingWeakPtrException<Media const> on execution for a dead link
class TARN_API LinkCmd : public MultiCommand
{
public:
    static boost::shared_ptr<LinkCmd> create(boost::shared_ptr<Media const> const& media1,
                                             boost::shared_ptr<Media const> const& media2);

    LinkCmd* clone() const override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;

protected:
    void executeCommands(CommandHandler const* handler) override;

private:
    LinkCmd(boost::shared_ptr<Media const> const& media1,
            boost::shared_ptr<Media const> const& media2);

    boost::shared_ptr<Media const> m_media1;
    boost::shared_ptr<Media const> m_media2;
};

}  // namespace tarn
