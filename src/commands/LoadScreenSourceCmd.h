#pragma once

#include "clipbin/ClipBinFwd.h"
#include "commands/CommandsFwd.h"
#include "commands/MultiCommand.h"
#include "datatypes/DatatypesFwd.h"

#include <boost/shared_ptr.hpp>

#include <string>

namespace tarn {

///     before   bin: -
///     after    bin: a, whose video medias carry the metadata
///
/// Loads a screen recording and gives what was recorded beside the picture to its video medias. The
/// timeline is not touched. Undo restores the medias' attribute, not the metadata's parent.
///
/// The source must hold no other visual medias than videos. Load a recording once: what
/// LoadSourceCmd says of a second load holds here, and also for a failed one.
/// @throws TarnMediaLibException on execution for a visual media that is no video file
/// @throws what LoadSourceCmd throws
class TARN_API LoadScreenSourceCmd : public MultiCommand
{
public:
    static boost::shared_ptr<LoadScreenSourceCmd> create(
        std::string const& path, boost::shared_ptr<ScreenMetaData> const& metaData);

    LoadScreenSourceCmd* clone() const override;

    /// Empty until executed.
    boost::shared_ptr<Source const> source() const;

    void xmlName(XMLable::Options& options) const override;

protected:
    void executeCommands(CommandHandler const* handler) override;

private:
    class MetaDataSetter;

    LoadScreenSourceCmd(std::string const& path, boost::shared_ptr<ScreenMetaData> const& metaData);
    LoadScreenSourceCmd(LoadScreenSourceCmd const& other);

    void addMetaData(boost::shared_ptr<Source const> const& source);

    boost::shared_ptr<LoadSourceCmd> m_load;
    boost::shared_ptr<ScreenMetaData> m_metaData;
};

}  // namespace tarn
