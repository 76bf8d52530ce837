#pragma once

#include "commands/NewTypedTrackCmd.h"

namespace tarn {

/// Asks for a track of still pictures on the visual mixer.
/// @throws TypeException on execution: a visual mixer takes visual tracks only
/// @throws AddRemoveException on execution without a visual mixer
class TARN_API NewImageTrackCmd : public NewTypedTrackCmd
{
public:
    /// -1 appends.
    static boost::shared_ptr<NewImageTrackCmd> create(int index);

    NewImageTrackCmd* clone() const override;

    /// Empty until executed.
    boost::shared_ptr<ImageTrack> track() const;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;

protected:
    boost::shared_ptr<Track> makeTrack(CommandHandler* handler, int index) const override;
    boost::shared_ptr<Mixer const> mixer(CommandHandler const* handler) const override;

private:
    explicit NewImageTrackCmd(int index);
};

}  // namespace tarn
