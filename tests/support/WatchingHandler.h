#pragma once

#include "commands/ForwardingHandler.h"
#include "project/InternalProject.h"
#include "timeline/Media.h"

#include <boost/shared_ptr.hpp>

#include <functional>
#include <string>

namespace tarn {
namespace test {

/// What is told of a primitive edit before it happens: its name, and the media if it edits one.
using PrimitiveHook =
    std::function<void(std::string const& primitive, boost::shared_ptr<Media const> const& media)>;

/// Stands between the commands and a project for as long as it lives: tells a hook of every
/// primitive edit and passes the edit on, unless the hook throws.
class WatchingHandler : public ForwardingHandler
{
public:
    WatchingHandler(InternalProject& project, PrimitiveHook const& hook)
        : ForwardingHandler(project), m_project(project), m_hook(hook)
    {
        m_primitive.reserve(64);
        m_project.setCommandHandler(this);
    }
    ~WatchingHandler() override { m_project.setCommandHandler(&m_project); }

private:
    void before(char const* primitive, boost::shared_ptr<Media const> const& media) override
    {
        m_primitive = primitive;
        m_hook(m_primitive, media);
    }

    InternalProject& m_project;
    PrimitiveHook m_hook;
    // With room for every name, so that it can be told when there is no memory.
    std::string m_primitive;
};

/// Runs a command and tells what it made of the model: each primitive with the start of its media
/// before the edit, as in "move@70 move@30 ".
inline std::string primitivesOf(InternalProject& project, boost::shared_ptr<Command> const& command)
{
    std::string log;
    WatchingHandler const watch(
        project, [&log](std::string const& primitive, boost::shared_ptr<Media const> const& media) {
            log += primitive;
            if (media)
                log += "@" + std::to_string(media->trackRange().start);
            log += " ";
        });
    project.execute(command);
    return log;
}

}  // namespace test
}  // namespace tarn
