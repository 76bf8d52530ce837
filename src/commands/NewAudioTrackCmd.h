#pragma once

#include "commands/NewTypedTrackCmd.h"

namespace tarn {

/// Makes an audio track on the audio mixer.
/// @throws AddRemoveException on execution without an audio mixer
/// @throws ValueException<int> on execution for an index that the mixer does not have
class TARN_API NewAudioTrackCmd : public NewTypedTrackCmd
{
public:
    /// -1 appends.
    static boost::shared_ptr<NewAudioTrackCmd> create(int index);

    NewAudioTrackCmd* clone() const override;

    /// Empty until executed.
    boost::shared_ptr<AudioTrack> track() const;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;

protected:
    boost::shared_ptr<Track> makeTrack(CommandHandler* handler, int index) const override;
    boost::shared_ptr<Mixer const> mixer(CommandHandler const* handler) const override;

private:
    explicit NewAudioTrackCmd(int index);
};

}  // namespace tarn
