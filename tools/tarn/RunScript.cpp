#include "RunScript.h"

#include "Progress.h"
#include "script/Parser.h"
#include "script/Runner.h"
#include "script/Verb.h"

#include <TarnMediaLib/timeline/Media.h>
#include <drawing/TimelinePicture.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <functional>
#include <iostream>

namespace tarn::tool {

namespace {

/// A script's file, and what is said about it.
class ScriptFile
{
public:
    ScriptFile(std::string const& file, Colors colors) : m_file(file), m_screen(2, colors) {}

    Terminal const& screen() const { return m_screen; }

    /// Where the script's file names count from.
    std::string folder() const
    {
        std::size_t const slash = m_file.rfind('/');
        if (slash == std::string::npos)
            return "";
        return slash == 0 ? "/" : m_file.substr(0, slash);
    }

    bool parse(Script& script) const
    {
        if (m_file == "-") {
            script = parseScript(std::cin);
        } else {
            std::ifstream text(m_file);
            if (text)
                script = parseScript(text);
            // A folder opens, and fails only when it is read.
            if (!text.eof()) {
                std::cerr << "tarn: " << m_screen.bad("cannot read " + printable(m_file)) << ": "
                          << std::strerror(errno) << '\n';
                return false;
            }
        }
        for (Complaint const& complaint : script.complaints)
            complain(complaint);
        return script.complaints.empty();
    }

    void complain(Complaint const& complaint) const
    {
        std::cerr << m_screen.strong(printable(m_file == "-" ? "<stdin>" : m_file) + ":" +
                                     std::to_string(complaint.place.line) + ":" +
                                     std::to_string(complaint.place.column) + ":")
                  << " " << m_screen.bad(printable(complaint.reason)) << '\n';
    }

private:
    std::string m_file;
    Terminal m_screen;
};

int execute(std::string const& name, Colors colors, std::ostream& out,
            std::function<int(Stage const&)> const& afterwards)
{
    ScriptFile const file(name, colors);
    Script script;
    if (!file.parse(script))
        return 1;
    Runner runner(script, file.folder(), out);
    Progress progress(file.screen(), script.statements.size());
    auto const complaint = runner.run([&](std::size_t index) {
        // Not before what prints, or the two would mix on one screen.
        if (script.statements[index].verb().edit)
            progress.show(index, script.statements[index].verb().name());
        else
            progress.clear();
    });
    progress.clear();
    out.flush();
    if (complaint) {
        file.complain(*complaint);
        return 1;
    }
    return afterwards(runner.stage());
}

int cannotWrite(std::string const& picture, Colors colors)
{
    std::string const why = std::strerror(errno);
    std::cerr << "tarn: " << Terminal(2, colors).bad("cannot write " + printable(picture)) << ": "
              << why << '\n';
    return 1;
}

/// Without the medias' names a picture would only tell their kinds.
drawing::Label labels(Stage const& stage)
{
    return [&stage](Media const& media) { return stage.label(media.shared_from_this()); };
}

int draw(Stage const& stage, std::string const& picture, Colors colors)
{
    if (picture == "-") {
        drawing::drawTimeline(*stage.timeline(), labels(stage), std::cout);
        return 0;
    }
    std::string const unfinished = picture + ".part";
    errno = 0;
    if (!drawing::drawTimeline(*stage.timeline(), labels(stage), unfinished) ||
        std::rename(unfinished.c_str(), picture.c_str()) != 0) {
        int const status = cannotWrite(picture, colors);
        std::remove(unfinished.c_str());
        return status;
    }
    return 0;
}

}  // namespace

int runScript(std::string const& file, Colors colors)
{
    return execute(file, colors, std::cout, [](Stage const&) { return 0; });
}

int drawScript(std::string const& file, std::string const& picture, Colors colors)
{
    return execute(file, colors, picture == "-" ? std::cerr : std::cout,
                   [&](Stage const& stage) { return draw(stage, picture, colors); });
}

}  // namespace tarn::tool
