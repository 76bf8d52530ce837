#pragma once

#include "commands/Command.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

///     before   A1: aaa... / V1: aaa...
///     after    A1: aaaaaa / V1: aaaaaa      to 2.0
///
/// Changes the speed of a media and of those linked to it: the scalar is track duration over
/// natural duration, absolute, so 1.0 is natural speed again. The start stays.
/// @throws CollisionException on execution with the medias in the way
/// @throws ValueException<double> on execution for a scalar that leaves no duration
class TARN_API StretchCmd : public Command
{
public:
    static boost::shared_ptr<StretchCmd> create(boost::shared_ptr<Track const> const& track,
                                                boost::shared_ptr<Media const> const& media,
                                                double scalar);

    StretchCmd* clone() const override;
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;
    /// Two on the same track and media become one to the later scalar, whose undo gives back the
    /// scalar from before both.
    boost::shared_ptr<Command> combine(boost::shared_ptr<Command> const& next) override;

    /// What a whole duration allowed; 0 until executed.
    double actualScalar() const { return m_actualScalar; }

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;

private:
    StretchCmd(boost::shared_ptr<Track const> const& track,
               boost::shared_ptr<Media const> const& media, double scalar);

    boost::shared_ptr<Track const> m_track;
    boost::shared_ptr<Media const> m_media;
    double m_requestedScalar;
    double m_oldScalar;
    double m_actualScalar;
};

}  // namespace tarn
