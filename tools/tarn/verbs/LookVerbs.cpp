#include "script/ModelText.h"
#include "script/ScriptError.h"
#include "script/Soundness.h"
#include "verbs/Verbs.h"

#include <TarnMediaLib/commands/CommandHistory.h>

#include <ostream>

namespace tarn::tool::verbs {

namespace {

void checkRow(Stage& stage, Statement const& statement)
{
    Word const& row = statement.word("ROW");
    Word const& expected = statement.word("is");
    std::string const found =
        row.text == "markers" ? markerText(*stage.timeline()) : rowText(stage, *stage.track(row));
    if (found != expected.text)
        throw ScriptError(expected.place, "check failed: " + row.text + " is \"" + found +
                                              "\", not \"" + expected.text + "\"");
}

}  // namespace

void dump(Stage& stage, Statement const& statement)
{
    std::string const what = statement.has("WHAT") ? statement.word("WHAT").text : "model";
    if (what == "xml")
        stage.project().toXML(stage.out());
    else if (what == "history")
        stage.project().commandHistory()->toXML(stage.out());
    else
        writeModel(stage.out(), stage);
}

void check(Stage& stage, Statement const& statement)
{
    if (statement.has("ROW")) {
        checkRow(stage, statement);
        return;
    }
    std::string const fault = unsoundness(stage);
    if (!fault.empty())
        throw ScriptError(statement.place(), "check failed: " + fault);
}

void print(Stage& stage, Statement const& statement)
{
    stage.out() << statement.word("TEXT").text << '\n';
}

}  // namespace tarn::tool::verbs
