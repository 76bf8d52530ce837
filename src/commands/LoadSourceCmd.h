#pragma once

#include "clipbin/ClipBinFwd.h"
#include "commands/Command.h"

#include <boost/shared_ptr.hpp>

#include <string>

namespace tarn {

/// Brings a file, or a source made elsewhere, into the project's bin. The file is read once: undo
/// and redo move the same source out and in, and ask no sentry.
///
/// Load a file once: a second load records the source that is there, and its undo takes it out.
/// @throws what SourceBin::loadFile throws, on execution
/// @throws ValueException<boost::shared_ptr<Source const>> on undo while the timeline shows it
class TARN_API LoadSourceCmd : public Command
{
public:
    static boost::shared_ptr<LoadSourceCmd> create(std::string const& path);
    /// Asks no sentry.
    static boost::shared_ptr<LoadSourceCmd> create(boost::shared_ptr<Source const> const& source);

    LoadSourceCmd* clone() const override;
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;
    bool reexecute(CommandHandler* handler) override;

    /// Empty until a command made from a path was executed.
    boost::shared_ptr<Source const> source() const { return m_source; }

    void xmlName(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

private:
    LoadSourceCmd(std::string const& path, boost::shared_ptr<Source const> const& source);

    std::string m_path;  // empty for a command made from a source
    boost::shared_ptr<Source const> m_source;
};

}  // namespace tarn
