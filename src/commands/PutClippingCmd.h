#pragma once

#include "clipbin/ClipBinFwd.h"
#include "commands/TrackMapCommand.h"

namespace tarn {

///     before   V1: aaa..b
///     after    V1: aaaccb      the clipping cc at 30
///
/// Lays a clipping's medias on the tracks that its tracks are mapped to. What lies there is never
/// replaced. The clones are not linked, so picture and sound come apart: run LinkCmd on them, or
/// paste the clipping's medias by a CloneAddLinkMediasCmd.
/// @throws CollisionException on execution when a place is taken; then nothing was pasted
class TARN_API PutClippingCmd : public TrackMapCommand
{
public:
    /// `time` is in edit units on the project's clock.
    PutClippingCmd(boost::shared_ptr<Clipping> const& clipping, long long time);
    static boost::shared_ptr<PutClippingCmd> create(boost::shared_ptr<Clipping> const& clipping,
                                                    long long time);

    PutClippingCmd* clone() const override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;

protected:
    void executeCommands(CommandHandler const* handler) override;

private:
    boost::shared_ptr<Clipping> m_clipping;
    long long m_time;
};

}  // namespace tarn
