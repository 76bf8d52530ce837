#include "commands/AddLeftEdgeModCmd.h"

#include "commands/CommandHandler.h"
#include "commands/EdgeModCommandHandler.h"
#include "parameters/Parameter.h"
#include "timeline/Media.h"

#include <ostream>

namespace tarn {

AddLeftEdgeModCmd::AddLeftEdgeModCmd(boost::shared_ptr<Media const> const& media,
                                     EdgeModification const& edgeMod)
    : AddEdgeModCmd(media, edgeMod)
{}

boost::shared_ptr<AddLeftEdgeModCmd> AddLeftEdgeModCmd::create(
    boost::shared_ptr<Media const> const& media, EdgeModification const& edgeMod)
{
    return boost::shared_ptr<AddLeftEdgeModCmd>(new AddLeftEdgeModCmd(media, edgeMod));
}

AddLeftEdgeModCmd* AddLeftEdgeModCmd::clone() const
{
    return new AddLeftEdgeModCmd(*this);
}

void AddLeftEdgeModCmd::addEdgeMod(CommandHandler* handler,
                                   boost::shared_ptr<Media const> const& media,
                                   EdgeModification const& edgeMod)
{
    handler->edgeModCommandHandler()->addLeftEdgeModification(media, edgeMod);
}

void AddLeftEdgeModCmd::removeEdgeMod(CommandHandler* handler,
                                      boost::shared_ptr<Media const> const& media,
                                      EdgeModification const& edgeMod)
{
    handler->edgeModCommandHandler()->removeLeftEdgeModification(media, edgeMod.parameter());
}

void AddLeftEdgeModCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "AddLeftEdgeModCmd";
}

}  // namespace tarn
