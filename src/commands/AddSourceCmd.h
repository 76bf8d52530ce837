#pragma once

#include "clipbin/ClipBinFwd.h"
#include "commands/TrackMapCommand.h"
#include "datatypes/DatatypesFwd.h"

namespace tarn {

///     before   A1: ...... / V1: bb....
///     after    A1: ..aaa. / V1: bbaaa.      a source with picture and sound, at 20
///
/// Puts clones of a source's medias on the tracks that the source's tracks are mapped to, and links
/// them all. Without mappings it adds nothing, successfully.
/// @throws TarnMediaLibException on execution when the clones are not linkable
/// @throws what AddMediaCmd throws; then nothing was added
class TARN_API AddSourceCmd : public TrackMapCommand
{
public:
    /// `time` is in edit units on the project's clock.
    /// Kept so: the range is ignored. The whole source is placed, and any cut is a later edit.
    static boost::shared_ptr<AddSourceCmd> create(boost::shared_ptr<Source const> const& source,
                                                  long long time, Range<long long> const& range);

    AddSourceCmd* clone() const override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;

protected:
    void executeCommands(CommandHandler const* handler) override;

private:
    AddSourceCmd(boost::shared_ptr<Source const> const& source, long long time);

    void linkAddedMedias();

    boost::shared_ptr<Source const> m_source;
};

}  // namespace tarn
