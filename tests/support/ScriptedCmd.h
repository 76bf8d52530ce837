#pragma once

#include "commands/Command.h"

#include <boost/shared_ptr.hpp>

#include <functional>
#include <string>

namespace tarn {
namespace test {

/// A command that notes what it is asked for in a log: "+a " executed, "-a " undone, "*a " redone.
/// Then it does what the test wants of it.
class ScriptedCmd : public Command
{
public:
    static boost::shared_ptr<ScriptedCmd> create(std::string const& name, std::string& log)
    {
        return boost::shared_ptr<ScriptedCmd>(new ScriptedCmd(name, log));
    }

    ScriptedCmd* clone() const override { return new ScriptedCmd(*this); }

    bool execute(CommandHandler* handler) override { return note("+", handler, onExecute); }
    bool unexecute(CommandHandler* handler) override { return note("-", handler, onUnexecute); }
    bool reexecute(CommandHandler* handler) override { return note("*", handler, onReexecute); }

    void xmlName(XMLable::Options& options) const override;

    std::string const& name() const { return m_name; }
    CommandHandler* handler() const { return m_handler; }

    std::function<void()> onExecute;
    std::function<void()> onUnexecute;
    std::function<void()> onReexecute;
    /// What each of the three answers.
    bool result = true;

private:
    ScriptedCmd(std::string const& name, std::string& log) : m_name(name), m_log(&log) {}

    bool note(char const* mark, CommandHandler* handler, std::function<void()> const& action)
    {
        m_handler = handler;
        *m_log += mark + m_name + " ";
        if (action) {
            action();
        }
        return result;
    }

    std::string m_name;
    std::string* m_log;
    CommandHandler* m_handler = nullptr;
};

}  // namespace test
}  // namespace tarn
