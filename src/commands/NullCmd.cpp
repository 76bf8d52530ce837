#include "commands/NullCmd.h"

#include <ostream>

namespace tarn {

boost::shared_ptr<NullCmd> NullCmd::create()
{
    return boost::shared_ptr<NullCmd>(new NullCmd);
}

NullCmd* NullCmd::clone() const
{
    return new NullCmd(*this);
}

bool NullCmd::execute(CommandHandler*)
{
    return true;
}

bool NullCmd::unexecute(CommandHandler*)
{
    return true;
}

bool NullCmd::reexecute(CommandHandler*)
{
    return true;
}

void NullCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "NullCmd";
}

}  // namespace tarn
