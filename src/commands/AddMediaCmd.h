#pragma once

#include "commands/Command.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

///     before   V1: aaa...
///     after    V1: aaabbb
///
/// Puts a parentless media on a track. Undo takes it off and gives it back the start it had before.
/// A media that lies on a track already must not be given: clone it first.
/// @throws CollisionException on execution with the medias in the way
/// @throws TypeException on execution for a kind that the track does not take
/// @throws TarnMediaLibException on execution for a media whose source is not the project's
class TARN_API AddMediaCmd : public Command
{
public:
    /// `time` is where the media will start, edit units on the track's clock.
    static boost::shared_ptr<AddMediaCmd> create(boost::shared_ptr<Track const> track,
                                                 boost::shared_ptr<Media const> media,
                                                 long long time);

    AddMediaCmd* clone() const override;
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;

private:
    friend class OnePiece<AddMediaCmd>;

    AddMediaCmd(boost::shared_ptr<Track const> track, boost::shared_ptr<Media const> media,
                long long time);

    boost::shared_ptr<Track const> m_track;
    boost::shared_ptr<Media const> m_media;
    long long m_time;
    long long m_oldStart;
};

}  // namespace tarn
