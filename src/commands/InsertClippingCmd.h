#pragma once

#include "clipbin/ClipBinFwd.h"
#include "commands/TrackMapCommand.h"

#include <vector>

namespace tarn {

///     before   A1: aaaa / V1: aaaa
///     after    A1: aa..bb / V1: aaccbb      the clipping cc to V1, at 20
///
/// Opens a gap of the clipping's length on every track of the project, mapped or not, so that the
/// tracks keep step, and lays the clipping's medias into it. Medias that lie across the time are
/// cut. The clones are not linked, as with PutClippingCmd.
/// @throws what SplittingRippleMoveCmd and AddMediaCmd throw; then nothing has changed
class TARN_API InsertClippingCmd : public TrackMapCommand
{
public:
    /// `time` is in edit units on the project's clock.
    InsertClippingCmd(boost::shared_ptr<Clipping> const& clipping, long long time);
    static boost::shared_ptr<InsertClippingCmd> create(boost::shared_ptr<Clipping> const& clipping,
                                                       long long time);

    InsertClippingCmd* clone() const override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;

protected:
    void executeCommands(CommandHandler const* handler) override;

private:
    void openGap(std::vector<boost::shared_ptr<Track const>> const& tracks);

    boost::shared_ptr<Clipping> m_clipping;
    long long m_time;
};

}  // namespace tarn
