#pragma once

#include "commands/Command.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

/// Gives the project its visual mixer; redo puts the same mixer back with all that came onto it.
/// @throws AddRemoveException on execution when there is one already
class TARN_API NewVisualMixerCmd : public Command
{
public:
    /// The frame's size in pixels.
    static boost::shared_ptr<NewVisualMixerCmd> create(float width, float height);

    NewVisualMixerCmd* clone() const override;
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;
    bool reexecute(CommandHandler* handler) override;

    /// Empty until executed.
    boost::shared_ptr<VisualMixer> mixer() const { return m_mixer; }

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;

private:
    NewVisualMixerCmd(float width, float height);

    float m_width;
    float m_height;
    boost::shared_ptr<VisualMixer> m_mixer;
};

}  // namespace tarn
