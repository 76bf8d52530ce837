#include "commands/AddEdgeModCmd.h"

#include "commands/CommandHandler.h"
#include "commands/RequireObjects.h"
#include "edgemods/AuxEdgeModInfo.h"
#include "edgemods/EdgeModFunc.h"
#include "parameters/Parameter.h"
#include "timeline/Track.h"
#include "timeline/VisualMedia.h"
#include "timeline/VisualMixer.h"

#include <boost/pointer_cast.hpp>

#include <memory>

namespace tarn {

namespace {

/// Where the media is seen: nothing, unless it lies on the project's visual mixer.
AuxEdgeModInfo auxInfoFor(boost::shared_ptr<Media const> const& media,
                          CommandHandler const* handler)
{
    AuxEdgeModInfo info;
    auto const visualMedia = boost::dynamic_pointer_cast<VisualMedia const>(media);
    boost::shared_ptr<VisualMixer const> const mixer = handler->visualMixer();
    if (visualMedia && mixer && mixer->hasTrack(media->parentTrack().lock())) {
        info.setVisualMixer(mixer);
        info.setVisualMedia(visualMedia);
    }
    return info;
}

}  // namespace

AddEdgeModCmd::AddEdgeModCmd(boost::shared_ptr<Media const> const& media,
                             EdgeModification const& edgeMod)
    : m_media(media), m_edgeMod(edgeMod)
{}

bool AddEdgeModCmd::execute(CommandHandler* handler)
{
    requireObjects(m_media, m_edgeMod.parameter());
    std::unique_ptr<EdgeModFunc> const func(m_edgeMod.func().clone());
    func->setAuxInfo(auxInfoFor(m_media, handler));
    m_edgeMod = EdgeModification(m_edgeMod.parameter(), *func);
    addEdgeMod(handler, m_media, m_edgeMod);
    return true;
}

bool AddEdgeModCmd::unexecute(CommandHandler* handler)
{
    removeEdgeMod(handler, m_media, m_edgeMod);
    return true;
}

}  // namespace tarn
