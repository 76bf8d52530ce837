#include "commands/EdgeModCloneCmd.h"

#include "commands/CommandHandler.h"
#include "commands/EdgeModCommandHandler.h"
#include "commands/RequireObjects.h"
#include "parameters/Parameter.h"
#include "timeline/Media.h"

#include <list>
#include <ostream>

namespace tarn {

EdgeModCloneCmd::EdgeModCloneCmd(boost::shared_ptr<Media const> const& media)
    : m_media(media), m_rightLength(0)
{}

boost::shared_ptr<EdgeModCloneCmd> EdgeModCloneCmd::create(
    boost::shared_ptr<Media const> const& media)
{
    return boost::shared_ptr<EdgeModCloneCmd>(new EdgeModCloneCmd(media));
}

EdgeModCloneCmd* EdgeModCloneCmd::clone() const
{
    return new EdgeModCloneCmd(*this);
}

bool EdgeModCloneCmd::execute(CommandHandler* handler)
{
    requireObjects(m_media);
    EdgeModCommandHandler* const edgeHandler = handler->edgeModCommandHandler();
    m_rightLength = m_media->rightEdgeModificationLength();
    if (!m_clone)
        m_clone = sharedClone<Media>(m_media);
    divideEdges(edgeHandler);
    return true;
}

bool EdgeModCloneCmd::unexecute(CommandHandler* handler)
{
    resetCloner(handler->edgeModCommandHandler());
    return true;
}

bool EdgeModCloneCmd::reexecute(CommandHandler* handler)
{
    divideEdges(handler->edgeModCommandHandler());
    return true;
}

void EdgeModCloneCmd::divideEdges(EdgeModCommandHandler* edgeHandler)
{
    setupClone();
    setupCloner(edgeHandler);
}

void EdgeModCloneCmd::setupClone()
{
    // Nothing else can see the clone yet, so it is changed directly.
    m_clone->setLeftEdgeModificationLength(0);
    m_clone->setRightEdgeModificationLength(m_rightLength);
    for (EdgeModification const& mod : m_clone->leftEdgeModifications())
        m_clone->removeLeftEdgeModification(mod.parameter());
}

void EdgeModCloneCmd::setupCloner(EdgeModCommandHandler* edgeHandler)
{
    std::list<EdgeModification> const mods = m_media->rightEdgeModifications();
    m_removedRightMods.clear();
    m_removedRightMods.reserve(mods.size());
    edgeHandler->setRightEdgeModificationLength(m_media, 0);
    try {
        // From the last, so that what is put back after a failure stands in the former order.
        for (auto it = mods.rbegin(); it != mods.rend(); ++it)
            m_removedRightMods.push_back(
                edgeHandler->removeRightEdgeModification(m_media, it->parameter()));
    } catch (...) {
        resetCloner(edgeHandler);
        throw;
    }
}

void EdgeModCloneCmd::resetCloner(EdgeModCommandHandler* edgeHandler)
{
    edgeHandler->setRightEdgeModificationLength(m_media, m_rightLength);
    auto it = m_removedRightMods.rbegin();
    try {
        for (; it != m_removedRightMods.rend(); ++it)
            edgeHandler->addRightEdgeModification(m_media, *it);
    } catch (...) {
        // All or none: what is here and at the clone as well would bend twice.
        while (it != m_removedRightMods.rbegin()) {
            --it;
            edgeHandler->removeRightEdgeModification(m_media, it->parameter());
        }
        edgeHandler->setRightEdgeModificationLength(m_media, 0);
        throw;
    }
}

void EdgeModCloneCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "EdgeModCloneCmd";
}

}  // namespace tarn
