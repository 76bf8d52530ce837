#pragma once

#include "clipbin/ClipBinFwd.h"
#include "commands/Command.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

#include <string>
#include <vector>

namespace tarn {

///     before   V1: aaa.bb
///     after    V1: aaa.bb      and a clipping V1: ccc, a selected
///
/// Puts clones of the selected medias, and of these alone, on the clipboard.
///
/// Kept so: undo leaves the clipping on the board, where a later paste may want it; redo then adds
/// a second one.
/// @throws TarnMediaLibException on execution when nothing is selected
class TARN_API CopySelectClippingCmd : public Command
{
public:
    static boost::shared_ptr<CopySelectClippingCmd> create(
        boost::shared_ptr<Timeline const> const& timeline,
        std::vector<boost::shared_ptr<Media const>> const& medias, std::string const& name);

    CopySelectClippingCmd* clone() const override;
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;

    /// Empty until executed.
    boost::shared_ptr<Clipping> clipping() const { return m_clipping; }

    void xmlName(XMLable::Options& options) const override;

private:
    CopySelectClippingCmd(boost::shared_ptr<Timeline const> const& timeline,
                          std::vector<boost::shared_ptr<Media const>> const& medias,
                          std::string const& name);

    boost::shared_ptr<Timeline const> m_timeline;
    std::vector<boost::shared_ptr<Media const>> m_medias;
    std::string m_name;
    boost::shared_ptr<Clipping> m_clipping;
};

}  // namespace tarn
