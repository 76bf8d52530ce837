#pragma once

#include "commands/CloneAddMediasCmd.h"

namespace tarn {

///     before   A1: aa...... / V1: aa......
///     after    A1: aa....bb / V1: aa....bb      both mapped, at 60
///
/// Clones medias onto tracks and links the clones as the originals are linked. A link to a media
/// that is not mapped gives none.
/// @throws TarnMediaLibException on execution when clones are not linkable
/// @throws DanglingWeakPtrException<Media const> on execution for a dead link
/// @throws what AddMediaCmd throws
class TARN_API CloneAddLinkMediasCmd : public CloneAddMediasCmd
{
public:
    /// Edit units on the clock of the tracks mapped to.
    static boost::shared_ptr<CloneAddLinkMediasCmd> create(long long time);

    CloneAddLinkMediasCmd* clone() const override;

    void xmlName(XMLable::Options& options) const override;

protected:
    void executeCommands(CommandHandler const* handler) override;

private:
    explicit CloneAddLinkMediasCmd(long long time);

    void linkClone(boost::shared_ptr<Media const> const& original,
                   boost::shared_ptr<Media> const& clone);
};

}  // namespace tarn
