#pragma once

#include "clipbin/ClipBinFwd.h"
#include "commands/CommandsFwd.h"
#include "commands/MultiCommand.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

#include <string>
#include <vector>

namespace tarn {

///     before   V1: aaa.bb
///     after    V1: ....bb      and a clipping V1: ccc, a selected
///
/// Copies the selected medias to the clipboard and takes them off the timeline. The removal takes
/// what is linked to them as well, the copy does not: select both halves of a pair to have both.
/// @throws what CopySelectClippingCmd and RemoveSelectMediaCmd throw
class TARN_API CutSelectClippingCmd : public MultiCommand
{
public:
    static boost::shared_ptr<CutSelectClippingCmd> create(
        boost::shared_ptr<Timeline const> const& timeline,
        std::vector<boost::shared_ptr<Media const>> const& medias, std::string const& name);

    CutSelectClippingCmd* clone() const override;

    /// Empty until executed.
    boost::shared_ptr<Clipping> clipping() const;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;

protected:
    void executeCommands(CommandHandler const* handler) override;

private:
    CutSelectClippingCmd(boost::shared_ptr<Timeline const> const& timeline,
                         std::vector<boost::shared_ptr<Media const>> const& medias,
                         std::string const& name);
    CutSelectClippingCmd(CutSelectClippingCmd const& other);

    boost::shared_ptr<CopySelectClippingCmd> m_copy;
    boost::shared_ptr<Timeline const> m_timeline;
    std::vector<boost::shared_ptr<Media const>> m_medias;
};

}  // namespace tarn
