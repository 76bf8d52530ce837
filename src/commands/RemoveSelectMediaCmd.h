#pragma once

#include "commands/MultiCommand.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

#include <vector>

namespace tarn {

///     before   A1: aaa..bb / V1: aaa.cc.
///     after    A1: .....bb / V1: ....cc.      a selected on V1
///
/// Takes the selected medias and all that they are linked to off their tracks, each group once.
/// @throws what RemoveMediaCmd throws
class TARN_API RemoveSelectMediaCmd : public MultiCommand
{
public:
    static boost::shared_ptr<RemoveSelectMediaCmd> create(
        boost::shared_ptr<Timeline const> const& timeline,
        std::vector<boost::shared_ptr<Media const>> const& medias);

    RemoveSelectMediaCmd* clone() const override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;

protected:
    void executeCommands(CommandHandler const* handler) override;

private:
    RemoveSelectMediaCmd(boost::shared_ptr<Timeline const> const& timeline,
                         std::vector<boost::shared_ptr<Media const>> const& medias);

    boost::shared_ptr<Timeline const> m_timeline;
    std::vector<boost::shared_ptr<Media const>> m_medias;
};

}  // namespace tarn
