#include "script/ScriptError.h"
#include "script/Target.h"
#include "script/Values.h"
#include "verbs/Verbs.h"

#include <TarnMediaLib/commands/AddEffectCmd.h>
#include <TarnMediaLib/commands/RemoveEffectCmd.h>
#include <TarnMediaLib/commands/SwapEffectOrderCmd.h>
#include <TarnMediaLib/effects/GenericEffect.h>

#include <boost/make_shared.hpp>

namespace tarn::tool::verbs {

Edit addEffect(Stage& stage, Statement const& statement)
{
    auto const effect =
        boost::make_shared<GenericEffect>(statement.word("EFFECT").text, stage.lock());
    return {AddEffectCmd::create(targetOf(stage, statement.word("to")).effectable, effect), {}};
}

Edit removeEffect(Stage& stage, Statement const& statement)
{
    Target const target = targetOf(stage, statement.word("from"));
    Word const& name = statement.word("EFFECT");
    return {RemoveEffectCmd::create(target.effectable, effectOf(target, name, name.text)), {}};
}

Edit swapEffects(Stage& stage, Statement const& statement)
{
    Target const target = targetOf(stage, statement.word("of"));
    std::vector<Word> const& words = statement.words("INDEX");
    int indexes[2];
    for (std::size_t i = 0; i < 2; ++i) {
        indexes[i] = static_cast<int>(*readInteger(words[i].text)) - 1;
        if (indexes[i] >= target.effectable->numEffects())
            throw ScriptError(words[i].place, "there is no effect " + words[i].text + " on it");
    }
    return {SwapEffectOrderCmd::create(target.effectable, indexes[0], indexes[1]), {}};
}

}  // namespace tarn::tool::verbs
