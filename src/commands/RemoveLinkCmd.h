#pragma once

#include "commands/Command.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

/// Takes the other media out of the links of the first; UnlinkCmd parts a media from its group.
///
/// Undo adds the link anew, at the end of the list, and is refused when the media ranges differ.
/// @throws TarnMediaLibException on execution when they are not linked or differ in track range
class TARN_API RemoveLinkCmd : public Command
{
public:
    static boost::shared_ptr<RemoveLinkCmd> create(boost::shared_ptr<Media const> const& media,
                                                   boost::shared_ptr<Media const> const& other);

    RemoveLinkCmd* clone() const override;
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;

private:
    RemoveLinkCmd(boost::shared_ptr<Media const> const& media,
                  boost::shared_ptr<Media const> const& other);

    boost::shared_ptr<Media const> m_media;
    boost::shared_ptr<Media const> m_other;
};

}  // namespace tarn
