#include "commands/LoadScreenSourceCmd.h"

#include "clipbin/Source.h"
#include "commands/LoadSourceCmd.h"
#include "commands/RequireObjects.h"
#include "commands/SetAttributeValueCmd.h"
#include "datatypes/ScreenMetaData.h"
#include "exceptions/TarnMediaLibException.h"
#include "parameters/Attribute.h"
#include "timeline/ConstMediaDispatcher.h"
#include "timeline/VMFile.h"

#include <boost/pointer_cast.hpp>

#include <ostream>

namespace tarn {

/// Gives the metadata to a video; any other media does not belong to a screen recording.
class LoadScreenSourceCmd::MetaDataSetter : public ConstMediaDispatcher
{
public:
    MetaDataSetter(LoadScreenSourceCmd* command, boost::shared_ptr<ScreenMetaData> const& metaData)
        : m_command(command), m_metaData(metaData)
    {}

    void dispatchMedia(boost::shared_ptr<VMFile const> const& media) override
    {
        // All videos share the one object, whose parent is the last of them.
        m_metaData->setParent(boost::shared_ptr<FileRepresentation const>(media));
        using Value = boost::shared_ptr<ScreenMetaData const>;
        auto const attribute = boost::const_pointer_cast<VMFile>(media)->screenMetaData();
        m_command->MultiCommand::execute(
            SetAttributeValueCmd<Value>::create(attribute, m_metaData));
    }
    void dispatchMedia(boost::shared_ptr<AMFile const> const&) override { refuse(); }
    void dispatchMedia(boost::shared_ptr<IMFile const> const&) override { refuse(); }
    void dispatchMedia(boost::shared_ptr<ImageTransition const> const&) override { refuse(); }
    void dispatchMedia(boost::shared_ptr<AudioTransition const> const&) override { refuse(); }
    void dispatchMedia(boost::shared_ptr<TextBox const> const&) override { refuse(); }
    void dispatchMedia(boost::shared_ptr<Callout const> const&) override { refuse(); }

private:
    [[noreturn]] static void refuse()
    {
        throw TarnMediaLibException("trying to LoadScreenSource with an invalid file");
    }

    LoadScreenSourceCmd* m_command;
    boost::shared_ptr<ScreenMetaData> m_metaData;
};

LoadScreenSourceCmd::LoadScreenSourceCmd(std::string const& path,
                                         boost::shared_ptr<ScreenMetaData> const& metaData)
    : m_load(LoadSourceCmd::create(path)), m_metaData(metaData)
{}

LoadScreenSourceCmd::LoadScreenSourceCmd(LoadScreenSourceCmd const& other)
    : XMLIdentified(other)
    , MultiCommand(other)
    , m_load(other.m_load->clone())
    , m_metaData(other.m_metaData)
{}

boost::shared_ptr<LoadScreenSourceCmd> LoadScreenSourceCmd::create(
    std::string const& path, boost::shared_ptr<ScreenMetaData> const& metaData)
{
    return boost::shared_ptr<LoadScreenSourceCmd>(new LoadScreenSourceCmd(path, metaData));
}

LoadScreenSourceCmd* LoadScreenSourceCmd::clone() const
{
    return new LoadScreenSourceCmd(*this);
}

boost::shared_ptr<Source const> LoadScreenSourceCmd::source() const
{
    return m_load->source();
}

void LoadScreenSourceCmd::executeCommands(CommandHandler const*)
{
    requireObjects(m_metaData);
    MultiCommand::execute(m_load);
    addMetaData(m_load->source());
}

void LoadScreenSourceCmd::addMetaData(boost::shared_ptr<Source const> const& source)
{
    MetaDataSetter setter(this, m_metaData);
    // The iterators hold a read lock, which costs nothing here: this thread is the writer.
    auto const end = source->mediaEnd<VisualMedia const>();
    for (auto it = source->mediaBegin<VisualMedia const>(); it != end; ++it)
        it->receiveDispatcher(&setter);
}

void LoadScreenSourceCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "LoadScreenSourceCmd";
}

}  // namespace tarn
