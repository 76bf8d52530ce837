#pragma once

#include "script/Parser.h"
#include "script/Stage.h"

#include <functional>
#include <memory>
#include <optional>

namespace tarn::tool {

/// Executes the statements of a script that was read without complaint, one after the other.
///
/// Each edit is one step of the history, and one that is refused leaves the model as it was.
class Runner
{
public:
    /// Called before each statement, with its index.
    using Progress = std::function<void(std::size_t)>;

    Runner(Script const& script, std::string const& folder, std::ostream& out);

    /// @return why the script stopped before its end
    std::optional<Complaint> run(Progress const& progress);

    Stage const& stage() const { return *m_stage; }

private:
    void execute(Statement const& statement);
    void edit(Statement const& statement);
    void refuse(Statement const& statement);
    std::string reasonOf(std::exception const& failure) const;

    Script const& m_script;
    std::unique_ptr<Stage> m_stage;
};

}  // namespace tarn::tool
