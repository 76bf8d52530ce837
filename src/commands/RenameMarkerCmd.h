#pragma once

#include "commands/ChangeKeyFrameCmd.h"
#include "timeline/TimelineFwd.h"

namespace tarn {

///     before   0 "Intro" ... 40 "Demo"
///     after    0 "Intro" ... 40 "The demonstration"
///
/// Gives the timeline's marker at `time`, in edit units on the timeline's clock, another name. Two
/// at the same time combine to the later name.
/// @throws KeyFrameException on execution when there is none at that time
class TARN_API RenameMarkerCmd : public ChangeKeyFrameCmd<std::string>
{
public:
    static boost::shared_ptr<RenameMarkerCmd> create(
        boost::shared_ptr<Timeline const> const& timeline, long long time, std::string const& name);

    RenameMarkerCmd* clone() const override;
    void xmlName(XMLable::Options& options) const override;

private:
    RenameMarkerCmd(boost::shared_ptr<Timeline const> const& timeline, long long time,
                    std::string const& name);
};

}  // namespace tarn
