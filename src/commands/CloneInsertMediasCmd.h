#pragma once

#include "commands/CloneAddMediasCmd.h"

namespace tarn {

///     before   V1: aabbbb
///     after    V1: aaccccbbbb      b to V1 at 20
///
/// Makes room on the tracks mapped to, as much as additionLength() says, and then puts clones of
/// medias there.
/// Kept so: places are read after the ripple, which may have cut or moved the originals.
/// @throws what SplittingRippleMoveCmd and AddMediaCmd throw; also when nothing is mapped
class TARN_API CloneInsertMediasCmd : public CloneAddMediasCmd
{
public:
    /// Edit units on the clock of the tracks mapped to.
    static boost::shared_ptr<CloneInsertMediasCmd> create(long long time);

    CloneInsertMediasCmd* clone() const override;

    void xmlName(XMLable::Options& options) const override;

protected:
    void executeCommands(CommandHandler const* handler) override;

private:
    explicit CloneInsertMediasCmd(long long time);
};

}  // namespace tarn
