#pragma once

#include "commands/NewTypedTrackCmd.h"

namespace tarn {

/// Makes a visual track on the visual mixer.
/// @throws AddRemoveException on execution without a visual mixer
/// @throws ValueException<int> on execution for an index that the mixer does not have
class TARN_API NewVisualTrackCmd : public NewTypedTrackCmd
{
public:
    /// -1 appends.
    static boost::shared_ptr<NewVisualTrackCmd> create(int index);

    NewVisualTrackCmd* clone() const override;

    /// Empty until executed.
    boost::shared_ptr<VisualTrack> track() const;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;

protected:
    boost::shared_ptr<Track> makeTrack(CommandHandler* handler, int index) const override;
    boost::shared_ptr<Mixer const> mixer(CommandHandler const* handler) const override;

private:
    explicit NewVisualTrackCmd(int index);
};

}  // namespace tarn
