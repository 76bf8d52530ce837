#pragma once

#include "commands/Command.h"
#include "effects/EffectsFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

/// Exchanges the places of two effects of a media, track or mixer.
/// @throws IndexException on execution for an index without an effect
class TARN_API SwapEffectOrderCmd : public Command
{
public:
    static boost::shared_ptr<SwapEffectOrderCmd> create(
        boost::shared_ptr<Effectable const> const& effectable, int index1, int index2);

    SwapEffectOrderCmd* clone() const override;
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;

private:
    SwapEffectOrderCmd(boost::shared_ptr<Effectable const> const& effectable, int index1,
                       int index2);

    boost::shared_ptr<Effectable const> m_effectable;
    int m_index1;
    int m_index2;
};

}  // namespace tarn
