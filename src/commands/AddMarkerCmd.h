#pragma once

#include "commands/AddKeyFrameCmd.h"
#include "timeline/TimelineFwd.h"

namespace tarn {

///     before   0 "Intro" .................. 90 "End"
///     after    0 "Intro" ... 40 "Demo" .... 90 "End"
///
/// Sets a marker: a key frame of the timeline's marker parameter. `time` is in edit units on the
/// timeline's clock.
/// @throws KeyFrameException on execution when there is one at that time
class TARN_API AddMarkerCmd : public AddKeyFrameCmd<std::string>
{
public:
    static boost::shared_ptr<AddMarkerCmd> create(boost::shared_ptr<Timeline const> const& timeline,
                                                  long long time, std::string const& name);

    AddMarkerCmd* clone() const override;
    void xmlName(XMLable::Options& options) const override;

private:
    AddMarkerCmd(boost::shared_ptr<Timeline const> const& timeline, long long time,
                 std::string const& name);
};

}  // namespace tarn
