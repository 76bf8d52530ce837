#include "script/Values.h"
#include "verbs/Verbs.h"

namespace tarn::tool::verbs {

ProjectSettings projectSettings(Statement const& statement)
{
    ProjectSettings settings;
    if (statement.has("rate")) {
        auto const rate = readRate(statement.word("rate").text);
        settings.rateUpper = rate->first;
        settings.rateLower = rate->second;
    }
    if (statement.has("size")) {
        auto const size = readSize(statement.word("size").text);
        settings.width = size->first;
        settings.height = size->second;
    }
    if (statement.has("sound"))
        settings.sampleRate = static_cast<unsigned>(*readInteger(statement.word("sound").text));
    return settings;
}

void project(Stage&, Statement const&) {}

}  // namespace tarn::tool::verbs
