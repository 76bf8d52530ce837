#include "commands/NewAudioMixerCmd.h"

#include "commands/CommandHandler.h"
#include "commands/XmlAttributes.h"
#include "timeline/AudioMixer.h"

#include <ostream>

namespace tarn {

NewAudioMixerCmd::NewAudioMixerCmd(unsigned int sampleRate, unsigned int bitDepth,
                                   unsigned int numChannels)
    : m_sampleRate(sampleRate), m_bitDepth(bitDepth), m_numChannels(numChannels)
{}

boost::shared_ptr<NewAudioMixerCmd> NewAudioMixerCmd::create(unsigned int sampleRate,
                                                             unsigned int bitDepth,
                                                             unsigned int numChannels)
{
    return boost::shared_ptr<NewAudioMixerCmd>(
        new NewAudioMixerCmd(sampleRate, bitDepth, numChannels));
}

NewAudioMixerCmd* NewAudioMixerCmd::clone() const
{
    return new NewAudioMixerCmd(*this);
}

bool NewAudioMixerCmd::execute(CommandHandler* handler)
{
    m_mixer = handler->newAudioMixer(m_sampleRate, m_bitDepth, m_numChannels);
    return true;
}

bool NewAudioMixerCmd::unexecute(CommandHandler* handler)
{
    handler->removeAudioMixer();
    return true;
}

bool NewAudioMixerCmd::reexecute(CommandHandler* handler)
{
    m_mixer = handler->newAudioMixer(m_mixer);
    return true;
}

void NewAudioMixerCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "NewAudioMixerCmd";
}

void NewAudioMixerCmd::xmlAttributes(XMLable::Options& options) const
{
    XmlAttributes(options)
        .address("audioMixer", m_mixer)
        .value("sampleRate", m_sampleRate)
        .value("bitDepth", m_bitDepth)
        .value("numChannels", m_numChannels);
}

}  // namespace tarn
