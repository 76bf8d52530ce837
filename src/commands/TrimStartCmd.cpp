#include "commands/TrimStartCmd.h"

#include "commands/CommandHandler.h"
#include "commands/OnePiece.h"
#include "commands/RequireObjects.h"
#include "datatypes/SaturatedArithmetic.h"
#include "timeline/Media.h"
#include "timeline/Track.h"

#include <ostream>
#include <utility>

namespace tarn {

TrimStartCmd::TrimStartCmd(boost::shared_ptr<Track const> track,
                           boost::shared_ptr<Media const> media, long long offset)
    : AtomicEditCmd(std::move(track), std::move(media), offset)
{}

boost::shared_ptr<TrimStartCmd> TrimStartCmd::create(boost::shared_ptr<Track const> track,
                                                     boost::shared_ptr<Media const> media,
                                                     long long offset)
{
    return OnePiece<TrimStartCmd>::make(std::move(track), std::move(media), offset);
}

TrimStartCmd* TrimStartCmd::clone() const
{
    return new TrimStartCmd(*this);
}

bool TrimStartCmd::execute(CommandHandler* handler)
{
    requireObjects(media());
    handler->trimStart(track(), media(), offset());
    return true;
}

bool TrimStartCmd::unexecute(CommandHandler* handler)
{
    handler->trimStart(track(), media(), saturatedDifference(0, offset()));
    return true;
}

boost::shared_ptr<Command> TrimStartCmd::combine(boost::shared_ptr<Command> const& next)
{
    return combineAtomicEdit<TrimStartCmd>(next);
}

void TrimStartCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "TrimStartCmd";
}

}  // namespace tarn
