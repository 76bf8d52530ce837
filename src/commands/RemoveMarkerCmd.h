#pragma once

#include "commands/RemoveKeyFrameCmd.h"
#include "timeline/TimelineFwd.h"

namespace tarn {

///     before   0 "Intro" ... 40 "Demo" .... 90 "End"
///     after    0 "Intro" .................. 90 "End"
///
/// Takes the timeline's marker at `time`, in edit units on the timeline's clock, away.
/// @throws KeyFrameException on execution when there is none at that time
class TARN_API RemoveMarkerCmd : public RemoveKeyFrameCmd<std::string>
{
public:
    static boost::shared_ptr<RemoveMarkerCmd> create(
        boost::shared_ptr<Timeline const> const& timeline, long long time);

    RemoveMarkerCmd* clone() const override;
    void xmlName(XMLable::Options& options) const override;

private:
    RemoveMarkerCmd(boost::shared_ptr<Timeline const> const& timeline, long long time);
};

}  // namespace tarn
