#include "commands/AddRightEdgeModCmd.h"

#include "commands/CommandHandler.h"
#include "commands/EdgeModCommandHandler.h"
#include "parameters/Parameter.h"
#include "timeline/Media.h"

#include <ostream>

namespace tarn {

AddRightEdgeModCmd::AddRightEdgeModCmd(boost::shared_ptr<Media const> const& media,
                                       EdgeModification const& edgeMod)
    : AddEdgeModCmd(media, edgeMod)
{}

boost::shared_ptr<AddRightEdgeModCmd> AddRightEdgeModCmd::create(
    boost::shared_ptr<Media const> const& media, EdgeModification const& edgeMod)
{
    return boost::shared_ptr<AddRightEdgeModCmd>(new AddRightEdgeModCmd(media, edgeMod));
}

AddRightEdgeModCmd* AddRightEdgeModCmd::clone() const
{
    return new AddRightEdgeModCmd(*this);
}

void AddRightEdgeModCmd::addEdgeMod(CommandHandler* handler,
                                    boost::shared_ptr<Media const> const& media,
                                    EdgeModification const& edgeMod)
{
    handler->edgeModCommandHandler()->addRightEdgeModification(media, edgeMod);
}

void AddRightEdgeModCmd::removeEdgeMod(CommandHandler* handler,
                                       boost::shared_ptr<Media const> const& media,
                                       EdgeModification const& edgeMod)
{
    handler->edgeModCommandHandler()->removeRightEdgeModification(media, edgeMod.parameter());
}

void AddRightEdgeModCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "AddRightEdgeModCmd";
}

}  // namespace tarn
