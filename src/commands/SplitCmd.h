#pragma once

#include "commands/IntraMediaCutCmd.h"

namespace tarn {

///     before   A1: aaaaaa / V1: aaaaaa
///     after    A1: aaaabb / V1: aaaabb      at 40 of V1
///
/// Cuts a media and those linked to it in two that touch: an intra-media cut of no length.
class TARN_API SplitCmd : public IntraMediaCutCmd
{
public:
    /// Edit units on the track's clock.
    /// @throws ValueException<long long> "unable to split" on execution, with the time, unless it
    /// lies inside a media that can be trimmed there
    /// @throws what else IntraMediaCutCmd throws
    static boost::shared_ptr<SplitCmd> create(boost::shared_ptr<Track const> const& track,
                                              long long time);

    SplitCmd* clone() const override;

    void xmlName(XMLable::Options& options) const override;

protected:
    void executeCommands(CommandHandler const* handler) override;

private:
    SplitCmd(boost::shared_ptr<Track const> const& track, long long time);
};

}  // namespace tarn
