#pragma once

#include "commands/Command.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

/// Gives the project its audio mixer; redo puts the same mixer back with all that came onto it.
/// @throws AddRemoveException on execution when there is one already
class TARN_API NewAudioMixerCmd : public Command
{
public:
    /// Samples a second, bits a sample, channels.
    static boost::shared_ptr<NewAudioMixerCmd> create(unsigned int sampleRate,
                                                      unsigned int bitDepth,
                                                      unsigned int numChannels);

    NewAudioMixerCmd* clone() const override;
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;
    bool reexecute(CommandHandler* handler) override;

    /// Empty until executed.
    boost::shared_ptr<AudioMixer> mixer() const { return m_mixer; }

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;

private:
    NewAudioMixerCmd(unsigned int sampleRate, unsigned int bitDepth, unsigned int numChannels);

    unsigned int m_sampleRate;
    unsigned int m_bitDepth;
    unsigned int m_numChannels;
    boost::shared_ptr<AudioMixer> m_mixer;
};

}  // namespace tarn
