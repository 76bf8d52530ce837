#include "commands/MoveCmd.h"

#include "commands/CommandHandler.h"
#include "commands/OnePiece.h"
#include "commands/RequireObjects.h"
#include "datatypes/SaturatedArithmetic.h"
#include "timeline/Media.h"
#include "timeline/Track.h"

#include <ostream>
#include <utility>

namespace tarn {

MoveCmd::MoveCmd(boost::shared_ptr<Track const> track, boost::shared_ptr<Media const> media,
                 long long offset)
    : AtomicEditCmd(std::move(track), std::move(media), offset)
{}

boost::shared_ptr<MoveCmd> MoveCmd::create(boost::shared_ptr<Track const> track,
                                           boost::shared_ptr<Media const> media, long long offset)
{
    return OnePiece<MoveCmd>::make(std::move(track), std::move(media), offset);
}

MoveCmd* MoveCmd::clone() const
{
    return new MoveCmd(*this);
}

bool MoveCmd::execute(CommandHandler* handler)
{
    requireObjects(media());
    handler->move(track(), media(), offset());
    return true;
}

bool MoveCmd::unexecute(CommandHandler* handler)
{
    handler->move(track(), media(), saturatedDifference(0, offset()));
    return true;
}

boost::shared_ptr<Command> MoveCmd::combine(boost::shared_ptr<Command> const& next)
{
    return combineAtomicEdit<MoveCmd>(next);
}

void MoveCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "MoveCmd";
}

void MoveCmd::fetchAhead(Turn turn) const
{
    if (turn == Turn::Far)
        media()->fetchAhead();
    else
        media()->fetchEntryAhead();
}

}  // namespace tarn
