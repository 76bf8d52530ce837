#include "script/ScriptError.h"
#include "script/Steps.h"
#include "verbs/Verbs.h"

#include <TarnMediaLib/commands/AddLeftEdgeModCmd.h>
#include <TarnMediaLib/commands/AddRightEdgeModCmd.h>
#include <TarnMediaLib/commands/MoveLeftEdgeModCmd.h>
#include <TarnMediaLib/commands/MoveRightEdgeModCmd.h>
#include <TarnMediaLib/commands/RemoveLeftEdgeModCmd.h>
#include <TarnMediaLib/commands/RemoveRightEdgeModCmd.h>
#include <TarnMediaLib/edgemods/EdgeModification.h>
#include <TarnMediaLib/edgemods/FadeInFunc.h>
#include <TarnMediaLib/edgemods/FadeOutFunc.h>
#include <TarnMediaLib/edgemods/MixerXSlideInFunc.h>
#include <TarnMediaLib/edgemods/MixerXSlideOutFunc.h>
#include <TarnMediaLib/edgemods/MixerYSlideInFunc.h>
#include <TarnMediaLib/edgemods/MixerYSlideOutFunc.h>
#include <TarnMediaLib/parameters/InterpolatingParam.h>
#include <TarnMediaLib/parameters/VectorParam.h>
#include <TarnMediaLib/timeline/AudioMedia.h>
#include <TarnMediaLib/timeline/VisualMedia.h>

#include <list>

namespace tarn::tool::verbs {

namespace {

boost::shared_ptr<Parameter<double> const> fadedParameter(
    boost::shared_ptr<Media const> const& media)
{
    if (auto const sound = boost::dynamic_pointer_cast<AudioMedia const>(media))
        return sound->volume();
    return boost::dynamic_pointer_cast<VisualMedia const>(media)->opacity();
}

/// A modification on one edge and the edge's length, as one step.
template <class Add, class Move>
Edit edge(boost::shared_ptr<Media const> const& media, EdgeModification const& modification,
          long long delta)
{
    return {Steps::create("Edge",
                          [media, modification, delta](Steps& steps) {
                              steps.run(Add::create(media, modification));
                              steps.run(Move::create(media, delta));
                          }),
            {}};
}

Edit leftEdge(Stage& stage, Statement const& statement, boost::shared_ptr<Media const> const& media,
              EdgeModification const& modification)
{
    long long const wanted = stage.time(statement.word("for"));
    return edge<AddLeftEdgeModCmd, MoveLeftEdgeModCmd>(
        media, modification, wanted - media->leftEdgeModificationLength());
}

Edit rightEdge(Stage& stage, Statement const& statement,
               boost::shared_ptr<Media const> const& media, EdgeModification const& modification)
{
    long long const wanted = stage.time(statement.word("for"));
    return edge<AddRightEdgeModCmd, MoveRightEdgeModCmd>(
        media, modification, wanted - media->rightEdgeModificationLength());
}

/// Takes everything off one edge, the last first: the undo of a removal appends, and the last
/// removal is undone first.
template <class Remove, class Move>
Edit clearedEdge(boost::shared_ptr<Media const> const& media,
                 std::list<EdgeModification> modifications, long long length)
{
    modifications.reverse();
    return {Steps::create("ClearEdge",
                          [media, modifications, length](Steps& steps) {
                              for (EdgeModification const& modification : modifications)
                                  steps.run(Remove::create(media, modification.parameter()));
                              steps.run(Move::create(media, -length));
                          }),
            {}};
}

boost::shared_ptr<VisualMedia const> picture(Stage& stage, Word const& word)
{
    auto const media = boost::dynamic_pointer_cast<VisualMedia const>(stage.media(word));
    if (!media)
        throw ScriptError(word.place, "only pictures slide");
    return media;
}

}  // namespace

Edit fadeIn(Stage& stage, Statement const& statement)
{
    boost::shared_ptr<Media const> const media = stage.media(statement.word("MEDIA"));
    return leftEdge(stage, statement, media, EdgeModification(fadedParameter(media), FadeInFunc()));
}

Edit fadeOut(Stage& stage, Statement const& statement)
{
    boost::shared_ptr<Media const> const media = stage.media(statement.word("MEDIA"));
    return rightEdge(stage, statement, media,
                     EdgeModification(fadedParameter(media), FadeOutFunc()));
}

Edit slideIn(Stage& stage, Statement const& statement)
{
    auto const media = picture(stage, statement.word("MEDIA"));
    if (statement.word("from").text == "left")
        return leftEdge(stage, statement, media,
                        EdgeModification(media->translation()->at(0), MixerXSlideInFunc()));
    return leftEdge(stage, statement, media,
                    EdgeModification(media->translation()->at(1), MixerYSlideInFunc()));
}

Edit slideOut(Stage& stage, Statement const& statement)
{
    auto const media = picture(stage, statement.word("MEDIA"));
    if (statement.word("to").text == "left")
        return rightEdge(stage, statement, media,
                         EdgeModification(media->translation()->at(0), MixerXSlideOutFunc()));
    return rightEdge(stage, statement, media,
                     EdgeModification(media->translation()->at(1), MixerYSlideOutFunc()));
}

Edit clearEdge(Stage& stage, Statement const& statement)
{
    boost::shared_ptr<Media const> const media = stage.media(statement.word("of"));
    Word const& which = statement.word("EDGE");
    bool const isStart = which.text == "start";
    auto const modifications =
        isStart ? media->leftEdgeModifications() : media->rightEdgeModifications();
    if (modifications.empty())
        throw ScriptError(which.place, "nothing is on that edge");
    if (isStart)
        return clearedEdge<RemoveLeftEdgeModCmd, MoveLeftEdgeModCmd>(
            media, modifications, media->leftEdgeModificationLength());
    return clearedEdge<RemoveRightEdgeModCmd, MoveRightEdgeModCmd>(
        media, modifications, media->rightEdgeModificationLength());
}

}  // namespace tarn::tool::verbs
