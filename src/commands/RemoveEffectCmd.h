#pragma once

#include "commands/Command.h"
#include "effects/EffectsFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

/// Takes an effect off a media, track or mixer; undo puts it back between its neighbours.
/// @throws ValueException<boost::shared_ptr<Effect const>> on execution when it is not there
class TARN_API RemoveEffectCmd : public Command
{
public:
    static boost::shared_ptr<RemoveEffectCmd> create(
        boost::shared_ptr<Effectable const> const& effectable,
        boost::shared_ptr<Effect const> const& effectToRemove);

    RemoveEffectCmd* clone() const override;
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;

private:
    RemoveEffectCmd(boost::shared_ptr<Effectable const> const& effectable,
                    boost::shared_ptr<Effect const> const& effectToRemove);

    boost::shared_ptr<Effectable const> m_effectable;
    boost::shared_ptr<Effect const> m_effectToRemove;
    boost::shared_ptr<Effect const> m_removedEffect;
    int m_removedEffectIndex;
};

}  // namespace tarn
