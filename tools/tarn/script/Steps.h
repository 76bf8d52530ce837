#pragma once

#include <TarnMediaLib/commands/MultiCommand.h>

#include <functional>
#include <string>

namespace tarn::tool {

/// Several commands as the one step that a line of a script is. Each may depend on what those
/// before it did; when one is refused, all are taken back.
class Steps : public MultiCommand
{
public:
    using Body = std::function<void(Steps&)>;

    /// `body` calls run() for each command, once.
    static boost::shared_ptr<Steps> create(std::string const& name, Body const& body);

    /// Runs a command as the next of the steps.
    void run(boost::shared_ptr<Command> const& command) { MultiCommand::execute(command); }

    Steps* clone() const override;
    void xmlName(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

protected:
    void executeCommands(CommandHandler const* handler) override;

private:
    Steps(std::string const& name, Body const& body) : m_name(name), m_body(body) {}

    std::string m_name;
    Body m_body;
};

}  // namespace tarn::tool
