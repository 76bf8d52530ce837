#pragma once

#include "commands/Command.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

/// Adds the other media to the links of the first; LinkCmd joins two groups both ways.
/// @throws TarnMediaLibException on execution unless the two are linkable
class TARN_API AddLinkCmd : public Command
{
public:
    static boost::shared_ptr<AddLinkCmd> create(boost::shared_ptr<Media const> const& media,
                                                boost::shared_ptr<Media const> const& other);

    AddLinkCmd* clone() const override;
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;

private:
    AddLinkCmd(boost::shared_ptr<Media const> const& media,
               boost::shared_ptr<Media const> const& other);

    boost::shared_ptr<Media const> m_media;
    boost::shared_ptr<Media const> m_other;
};

}  // namespace tarn
