#pragma once

#include "commands/Command.h"
#include "effects/EffectsFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

/// Puts an effect on a media, track or mixer, above those there. Redo brings the very object back
/// to the very index.
class TARN_API AddEffectCmd : public Command
{
public:
    static boost::shared_ptr<AddEffectCmd> create(
        boost::shared_ptr<Effectable const> const& effectable,
        boost::shared_ptr<Effect const> const& effectToAdd);

    AddEffectCmd* clone() const override;
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;

private:
    AddEffectCmd(boost::shared_ptr<Effectable const> const& effectable,
                 boost::shared_ptr<Effect const> const& effectToAdd);

    boost::shared_ptr<Effectable const> m_effectable;
    boost::shared_ptr<Effect const> m_effectToAdd;
    boost::shared_ptr<Effect const> m_removedEffect;  // set by the first undo
    int m_removedEffectIndex;
};

}  // namespace tarn
