#include "commands/TrimEndCmd.h"

#include "commands/CommandHandler.h"
#include "commands/OnePiece.h"
#include "commands/RequireObjects.h"
#include "datatypes/SaturatedArithmetic.h"
#include "timeline/Media.h"
#include "timeline/Track.h"

#include <ostream>
#include <utility>

namespace tarn {

TrimEndCmd::TrimEndCmd(boost::shared_ptr<Track const> track, boost::shared_ptr<Media const> media,
                       long long offset)
    : AtomicEditCmd(std::move(track), std::move(media), offset)
{}

boost::shared_ptr<TrimEndCmd> TrimEndCmd::create(boost::shared_ptr<Track const> track,
                                                 boost::shared_ptr<Media const> media,
                                                 long long offset)
{
    return OnePiece<TrimEndCmd>::make(std::move(track), std::move(media), offset);
}

TrimEndCmd* TrimEndCmd::clone() const
{
    return new TrimEndCmd(*this);
}

bool TrimEndCmd::execute(CommandHandler* handler)
{
    requireObjects(media());
    handler->trimEnd(track(), media(), offset());
    return true;
}

bool TrimEndCmd::unexecute(CommandHandler* handler)
{
    handler->trimEnd(track(), media(), saturatedDifference(0, offset()));
    return true;
}

boost::shared_ptr<Command> TrimEndCmd::combine(boost::shared_ptr<Command> const& next)
{
    return combineAtomicEdit<TrimEndCmd>(next);
}

void TrimEndCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "TrimEndCmd";
}

}  // namespace tarn
