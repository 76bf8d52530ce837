// tarn: the library at the command line. Each subcommand has a file of its own; here are the
// options alone.

#include "Effects.h"
#include "Probe.h"
#include "RunScript.h"
#include "script/Verb.h"

#include <TarnMediaLib/project/Version.h>

#include <CLI/CLI.hpp>

#include <iostream>
#include <sstream>

namespace {

using tarn::tool::Colors;
using tarn::tool::EffectsForm;

int const k_usage = 2;

std::string dotted(int version)
{
    return std::to_string(version / 10000) + "." + std::to_string(version / 100 % 100) + "." +
           std::to_string(version % 100);
}

std::string versionText()
{
    return "tarn " + dotted(TARN_VERSION) + ", TarnMediaLib " + dotted(tarn::libraryVersion());
}

/// The verbs of scripts, as the help lists them.
std::string verbHelp()
{
    std::ostringstream text;
    text << "Commands of a script, one a line; # begins a comment. See man tarn.\n";
    for (tarn::tool::Verb const& verb : tarn::tool::verbTable())
        text << "  " << verb.syntax << "\n        " << verb.help << "\n";
    return text.str();
}

/// What was asked for.
struct Options
{
    std::string color = "auto";
    std::vector<std::string> files;
    std::string effect;
    std::string script;
    std::string picture;
    bool asJson = false;
    bool asNames = false;

    Colors colors() const
    {
        if (color == "always")
            return Colors::Always;
        return color == "never" ? Colors::Never : Colors::Auto;
    }
};

class CommandLine
{
public:
    CommandLine()
    {
        m_app.set_version_flag("--version", versionText());
        m_app.add_option("--color", m_options.color, "Colours; auto is on a terminal")
            ->type_name("WHEN")
            ->check(CLI::IsMember(std::vector<std::string>{"auto", "always", "never"}));
        m_app.require_subcommand(1);
        m_app.fallthrough();
        addProbe();
        addEffects();
        addScripts();
    }

    int run(int argc, char** argv)
    {
        try {
            m_app.parse(argc, argv);
        } catch (CLI::ParseError const& error) {
            return m_app.exit(error, std::cout, std::cerr) == 0 ? 0 : k_usage;
        }
        return m_chosen();
    }

private:
    void addProbe()
    {
        CLI::App* const command = add("probe", "Show the tracks of media files", [this] {
            return tarn::tool::probe(m_options.files, m_options.asJson, m_options.colors());
        });
        command->add_option("FILE", m_options.files, "Media files")->required();
        command->add_flag("--json", m_options.asJson, "As JSON, one object a file");
    }

    void addEffects()
    {
        CLI::App* const command = add("effects", "Show the effects of this machine", [this] {
            EffectsForm const form = m_options.asJson    ? EffectsForm::Json
                                     : m_options.asNames ? EffectsForm::Names
                                                         : EffectsForm::Table;
            return tarn::tool::showEffects(m_options.effect, form, m_options.colors());
        });
        command->add_option("NAME", m_options.effect, "This effect alone");
        CLI::Option* const json =
            command->add_flag("--json", m_options.asJson, "As JSON, one object an effect");
        command->add_flag("--names", m_options.asNames, "Names alone, one a line")->excludes(json);
    }

    void addScripts()
    {
        CLI::App* const run = add("run", "Run a script of edits", [this] {
            return tarn::tool::runScript(m_options.script, m_options.colors());
        });
        addScriptOption(*run);
        CLI::App* const draw =
            add("draw", "Run a script and draw the timeline that it leaves", [this] {
                return tarn::tool::drawScript(m_options.script, m_options.picture,
                                              m_options.colors());
            });
        addScriptOption(*draw);
        draw->add_option("-o,--output", m_options.picture,
                         "The SVG file to write; - is the standard output")
            ->required();
    }

    void addScriptOption(CLI::App& command)
    {
        command.add_option("SCRIPT", m_options.script, "The script; - is the standard input")
            ->required();
        command.footer(verbHelp());
    }

    CLI::App* add(std::string const& name, std::string const& help,
                  std::function<int()> const& action)
    {
        CLI::App* const command = m_app.add_subcommand(name, help);
        command->callback([this, action] { m_chosen = action; });
        return command;
    }

    CLI::App m_app{"Look into media files and edit them by script, with TarnMediaLib.", "tarn"};
    Options m_options;
    std::function<int()> m_chosen;
};

}  // namespace

int main(int argc, char** argv)
{
    try {
        int const status = CommandLine().run(argc, argv);
        // A full disk or a closed pipe shows only now.
        if (!std::cout.flush()) {
            std::cerr << "tarn: cannot write to the standard output\n";
            return 1;
        }
        return status;
    } catch (std::exception const& failure) {
        std::cerr << "tarn: " << failure.what() << '\n';
        return 1;
    }
}
