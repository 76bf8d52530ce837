#include "script/Runner.h"

#include "Reason.h"
#include "script/ModelText.h"
#include "script/ScriptError.h"
#include "script/Verb.h"
#include "verbs/Verbs.h"

#include <TarnMediaLib/commands/CommandHistory.h>
#include <TarnMediaLib/exceptions/CollisionException.h>
#include <TarnMediaLib/exceptions/KeyFrameException.h>
#include <TarnMediaLib/exceptions/LinkException.h>

#include <sstream>

namespace tarn::tool {

namespace {

ProjectSettings settingsOf(Script const& script)
{
    bool const isSaid =
        !script.statements.empty() && script.statements.front().verb().name() == "project";
    return isSaid ? verbs::projectSettings(script.statements.front()) : ProjectSettings();
}

/// The text without the numbers in `id="7"`: printing draws new ones for copies that it makes.
std::string withoutIdents(std::string const& xml)
{
    std::string const k_ident = " id=\"";
    std::string text;
    std::size_t from = 0;
    for (std::size_t at = xml.find(k_ident); at != std::string::npos; at = xml.find(k_ident, at)) {
        at += k_ident.size();
        text.append(xml, from, at - from);
        from = xml.find('"', at);
    }
    return text.append(xml, from, std::string::npos);
}

/// Everything that can be seen of a project.
std::string fingerprint(Project const& project)
{
    std::ostringstream text;
    project.toXML(text);
    project.commandHistory()->toXML(text);
    return withoutIdents(text.str());
}

}  // namespace

Runner::Runner(Script const& script, std::string const& folder, std::ostream& out)
    : m_script(script), m_stage(new Stage(settingsOf(script), folder, out))
{}

std::optional<Complaint> Runner::run(Progress const& progress)
{
    for (std::size_t i = 0; i < m_script.statements.size(); ++i) {
        Statement const& statement = m_script.statements[i];
        progress(i);
        try {
            execute(statement);
        } catch (ScriptError const& error) {
            return Complaint{error.place(), error.what()};
        } catch (std::exception const& failure) {
            return Complaint{statement.place(), reasonOf(failure)};
        }
    }
    return std::nullopt;
}

void Runner::execute(Statement const& statement)
{
    if (!statement.verb().edit)
        statement.verb().act(*m_stage, statement);
    else if (statement.prefix() == Statement::Prefix::Refuse)
        refuse(statement);
    else
        edit(statement);
}

void Runner::edit(Statement const& statement)
{
    Project& project = m_stage->project();
    bool const combines = statement.prefix() == Statement::Prefix::Combine;
    if (combines && project.commandHistory()->numUndoCommands() == 0)
        throw ScriptError(statement.place(), "there is no edit to combine with");
    Edit const made = statement.verb().edit(*m_stage, statement);
    // An edit that found nothing to do is no step, and must not make one of the two before it.
    if (project.execute(made.command) && combines)
        project.combineLastCommands();
    if (made.afterwards)
        made.afterwards();
}

void Runner::refuse(Statement const& statement)
{
    std::string const before = fingerprint(m_stage->project());
    try {
        m_stage->project().execute(statement.verb().edit(*m_stage, statement).command);
    } catch (std::exception const&) {
        if (fingerprint(m_stage->project()) != before)
            throw ScriptError(statement.place(), "the refused edit has changed the project");
        return;
    }
    throw ScriptError(statement.place(), "the edit was not refused");
}

// Some exceptions of the library carry the better part of what they know beside their text.
std::string Runner::reasonOf(std::exception const& failure) const
{
    if (auto const* collision = dynamic_cast<CollisionException const*>(&failure)) {
        std::string text = "no room: in the way";
        char const* separator = " is ";
        for (boost::shared_ptr<Media const> const& media : *collision->medias()) {
            text += separator + mediaText(*m_stage, media);
            separator = ", ";
        }
        return text;
    }
    if (auto const* links = dynamic_cast<LinkException const*>(&failure)) {
        std::ostringstream text;
        text << "linked medias span different ranges: " << links->first() << " and "
             << links->second();
        return text.str();
    }
    if (auto const* key = dynamic_cast<KeyFrameException const*>(&failure))
        return "a key frame is in the way or missing at " + std::to_string(key->time());
    std::string const text = tool::reasonOf(failure);
    return text.empty() ? "something that the edit needs is gone" : text;
}

}  // namespace tarn::tool
