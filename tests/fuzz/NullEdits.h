#pragma once

#include "commands/Command.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

#include <string>
#include <vector>

namespace tarn {
namespace test {

class Stage;

/// A command with an empty pointer among its arguments.
struct NullEdit
{
    using Maker = boost::shared_ptr<Command> (*)(Stage const& stage,
                                                 boost::shared_ptr<Track> const& on,
                                                 boost::shared_ptr<Media> const& it);

    Maker make;
    /// The same as text.
    char const* text;
    /// Its text for a test of the stage, which is the stage itself.
    std::string code() const;
};

/// A command given a track, or a media for a track, in one expression.
template <class C>
boost::shared_ptr<C> with(boost::shared_ptr<C> const& command,
                          boost::shared_ptr<Track const> const& track)
{
    command->addTrack(track);
    return command;
}

template <class C>
boost::shared_ptr<C> mapped(boost::shared_ptr<C> const& command,
                            boost::shared_ptr<Track const> const& track,
                            boost::shared_ptr<Media const> const& media)
{
    command->addMapping(track, media);
    return command;
}

/// For each command that takes objects and each of its objects.
std::vector<NullEdit> const& nullEdits();

}  // namespace test
}  // namespace tarn
