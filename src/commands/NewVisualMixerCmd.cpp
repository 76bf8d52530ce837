#include "commands/NewVisualMixerCmd.h"

#include "commands/CommandHandler.h"
#include "commands/XmlAttributes.h"
#include "timeline/VisualMixer.h"

#include <ostream>

namespace tarn {

NewVisualMixerCmd::NewVisualMixerCmd(float width, float height) : m_width(width), m_height(height)
{}

boost::shared_ptr<NewVisualMixerCmd> NewVisualMixerCmd::create(float width, float height)
{
    return boost::shared_ptr<NewVisualMixerCmd>(new NewVisualMixerCmd(width, height));
}

NewVisualMixerCmd* NewVisualMixerCmd::clone() const
{
    return new NewVisualMixerCmd(*this);
}

bool NewVisualMixerCmd::execute(CommandHandler* handler)
{
    m_mixer = handler->newVisualMixer(m_width, m_height);
    return true;
}

bool NewVisualMixerCmd::unexecute(CommandHandler* handler)
{
    handler->removeVisualMixer();
    return true;
}

bool NewVisualMixerCmd::reexecute(CommandHandler* handler)
{
    m_mixer = handler->newVisualMixer(m_mixer);
    return true;
}

void NewVisualMixerCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "NewVisualMixerCmd";
}

void NewVisualMixerCmd::xmlAttributes(XMLable::Options& options) const
{
    XmlAttributes(options)
        .address("visualMixer", m_mixer)
        .value("width", m_width)
        .value("height", m_height);
}

}  // namespace tarn
